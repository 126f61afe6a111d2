#include <aio_ostream.h>
#include <atr_String.h>

#include <gtest/gtest.h>

#include <limits>
#include <sstream>
#include <string>

TEST(AtrString, CopiesShareWritesUnshareAndEditsClipAtTheEnds) {
  atr_StringBase a("shared text");
  atr_StringBase b(a);
  EXPECT_TRUE(a.IsShared());
  b.Append("!");
  EXPECT_EQ(a, "shared text");
  EXPECT_EQ(b, "shared text!");
  EXPECT_FALSE(a.IsShared());

  // A permanent text outlives every copy, written or dropped, unchanged.
  static const auto& kept = *new atr_StringBase(atr_StringBase::Permanent("kept"));
  for (int i = 0; i < 3; ++i) {
    atr_StringBase copy(kept);
    copy = kept;
    copy.Append("!");
    EXPECT_EQ(copy, "kept!");
  }
  EXPECT_EQ(kept, "kept");

  atr_StringBase text("abcdef");
  text.Erase(4, 100);
  EXPECT_EQ(text, "abcd");
  text.Erase(10, 1);
  EXPECT_EQ(text, "abcd");
  text.Replace(1, 2, "XYZ");
  EXPECT_EQ(text, "aXYZd");
  text.Insert(0, ">");
  EXPECT_EQ(text, ">aXYZd");
  text.Append(text.View().substr(1, 2));  // a part of itself
  EXPECT_EQ(text, ">aXYZdaX");
  EXPECT_EQ(text.ReplaceAll("X", "--"), ">a--YZda--");
  EXPECT_EQ(text.Substr(2, 3), "--Y");
  EXPECT_EQ(text.Find("YZ"), 4);
  EXPECT_EQ(text.Find("zz"), text.Length());  // absent: Find answers the length, from any start
  EXPECT_EQ(text.Find('>', 3), text.Length());
  EXPECT_EQ(atr_StringBase().Find("x"), 0);
}

TEST(AtrString, NumbersUseTheShortestExactFormAndFormatPrintsAsPrintf) {
  EXPECT_EQ(atr_StringBase(1.0), "1");
  EXPECT_EQ(atr_StringBase(0.1), "0.1");
  EXPECT_EQ(atr_StringBase(1e20), "1e+20");
  EXPECT_EQ(atr_StringBase(-0.0), "-0");
  EXPECT_EQ(atr_StringBase(std::numeric_limits<double>::max()), "1.7976931348623157e+308");
  EXPECT_EQ(atr_StringBase(-2147483647 - 1), "-2147483648");
  EXPECT_EQ(atr_StringBase(4294967295u), "4294967295");
  const double third = 1.0 / 3.0;
  EXPECT_EQ(std::stod(atr_StringBase(third).StdString()), third);
  EXPECT_EQ(atr_StringBase::Format("%s=%d", "n", 5), "n=5");
  EXPECT_EQ(atr_StringBase::Format("%s", ""), "");
  EXPECT_LT(atr_StringBase("OFF"), atr_StringBase("ON"));
  EXPECT_TRUE(atr_StringBase(nullptr).IsEmpty());
}

TEST(AioOstream, RedirectsTheErrorStream) {
  std::ostringstream captured;
  std::ostream* previous = aio_cerr().Redirect(&captured);
  aio_cerr() << "n=" << 3 << ' ' << atr_StringBase("x") << 2.5;
  aio_cerr().Redirect(previous);
  EXPECT_EQ(captured.str(), "n=3 x2.5");
}
