// Colours: packing, text, HSV, names, palettes and ramps.
#include "G3dTestSupport.h"
#include "OnThreads.h"
#include "RaisedText.h"

#include <g3d_ColorArray.h>
#include <g3d_ColorErrorException.h>
#include <g3d_ColorMap.h>
#include <g3d_Utils.h>

#include <nex_TextException.h>

#include <gtest/gtest.h>

#include <cmath>
#include <tuple>

namespace {
constexpr float kByte = 0.003921568859368563f;

// The channels as a point, for ExpectNear.
g3d_Point Rgba(const g3d_Color& c) { return {c.r, c.g, c.b, c.a}; }

TEST(ColorTest, PackingTruncatesAndPresetsTakeTheAlpha) {
  EXPECT_EQ(g3d_Color().Set(0xFF800000u), g3d_Color(1, 128 * kByte, 0, 0));
  EXPECT_EQ(g3d_Color(1, 0, 0.999f, 0.2f).GetRGBA(), 0xFF00FE33u);
  for (unsigned int packed : {0x00000000u, 0x12345678u, 0xFFFFFFFFu, 0x01FE7F80u}) {
    EXPECT_EQ(g3d_Color().Set(packed).GetRGBA(), packed) << std::hex << packed;
  }
  EXPECT_EQ(g3d_Color(PRESET_CYAN, 0.5f), g3d_Color(0, 1, 1, 0.5f));
  const g3d_Color c(0.1f, 0.2f, 0.3f, 0.4f);  // a preset past the last leaves the colour
  EXPECT_EQ(g3d_Color(c).Set(static_cast<g3d_PresetColorEnum>(17), 1.0f), c);
}

// A hex text is read as far as it scans and anything else is left; a name resolves or raises.
TEST(ColorTest, HexTextsAndNames) {
  const g3d_Color untouched(0.25f, 0.25f, 0.25f, 0.25f);
  const struct {
    const char* text;
    g3d_Color expected;
  } cases[] = {
      {"#FF8000", {1, 128 * kByte, 0, 1}},
      {"#ff", {1, 0, 0, 1}},      // the rest stays 0
      {"#zz1122", {0, 0, 0, 1}},  // nothing scanned
      {"Red", untouched},         // not a hex text: unchanged, no error
      {"", untouched},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(g3d_Color(untouched).Set(cow_String(c.text), 1.0f), c.expected) << c.text;
  }
  EXPECT_EQ(g3d_Color().SetByName("Gold", 0.5f), g3d_Color(1, 0.844f, 0, 0.5f));
  EXPECT_EQ(g3d_Color().SetByName("#0000FF", 1), g3d_Color(0, 0, 1, 1));
  // The class's message and script name are checked with the scripting errors.
  EXPECT_EQ(Raised<g3d_ColorErrorException>([] { g3d_Color().SetByName("Mauve", 1); }),
            "Mauve is not a valid color name.");
}

// Run alone, as ctest runs each test, the threads are the map's first users; under
// ThreadSanitizer this fails if they race to make it.
TEST(ColorTest, NamesResolveOnSeveralThreadsAtOnce) {
  OnThreads(2, [](int) {
    ExpectNear(Rgba(g3d_ColorMap::Instance().Lookup("Sky blue")), {0, 0.8f, 1, 1});
  });
}

TEST(ColorTest, HsvBothWays) {
  const auto hsv = [](g3d_Color c) { return c.GetHSV(); };
  EXPECT_EQ(
      std::tuple(hsv({0, 0, 0}).h, hsv({0, 0, 0}).s, hsv({0, 0, 1}).s, hsv({0.4f, 0.4f, 0.4f}).s),
      std::tuple(0.0f, 0.0f, 1.0f, 0.0f));
  EXPECT_FLOAT_EQ(hsv({0, 0, 1}).h, 2.0f / 3);
  EXPECT_FLOAT_EQ(hsv({1, 0, 0.5f}).h, 1 - 0.5f / 6);  // negative sector wraps
  const float nan = std::nanf("");
  const g3d_Color start(0.25f, 0.5f, 0.75f, 0.3f);  // alpha is always kept
  const std::tuple<_HSV, g3d_Color, const char*> sets[] = {
      {{0, 1, 1}, {1, 0, 0, 0.3f}, "red"},
      {{1, 1, 1}, {1, 0, 0, 0.3f}, "a full turn is hue 0"},
      {{0.7f, 0, 0.6f}, {0.6f, 0.6f, 0.6f, 0.3f}, "no saturation is grey"},
      {{-0.0041859434f, 0.243137255f, 0.140353024f},
       {0.140353024f, 0.105370902f, 0.106227975f, 0.3f},
       "a hue just below 0 truncates to sector 0"},
      {{-0.2f, 1, 1}, start, "sector -1 leaves the colour"},
      {{nan, 1, 1}, start, "a NaN hue leaves the colour"}};
  for (const auto& [hsv, expected, what] : sets) {
    SCOPED_TRACE(what);
    ExpectNear(Rgba(g3d_Color(start).SetHSV(hsv)), Rgba(expected));
  }
  for (const g3d_Color c : {g3d_Color(0.2f, 0.7f, 0.1f), g3d_Color(0.9f, 0.3f, 0.5f),
                            g3d_Color(0.1f, 0.4f, 0.8f), g3d_Color(1, 1, 0)}) {
    ExpectNear(Rgba(g3d_Color().SetHSV(c.GetHSV())), Rgba(c));
  }
}

TEST(ColorTest, PctToHsvAndSixteenBitChannels) {
  const _HSV limited = g3d_Color::PctToHSV(1.5f, 0.5f, -1);  // only the hue is limited
  EXPECT_EQ(std::tuple(limited.h, limited.s, limited.v), std::tuple(1.0f, 0.5f, -1.0f));
  constexpr unsigned short kUntouched = 1;
  const struct {
    _HSV hsv;
    bool delivered;
    unsigned short r, g, b;
  } channels[] = {{{0.5f, 1, 1}, true, 0, 65535, 65535},
                  {{0.3f, 0, 0.5f}, true, 32768, 32768, 32768},
                  {{-0.0041859434f, 0.243137255f, 0.140353024f}, true, 9198, 6905, 6962},
                  {{-0.5f, 1, 1}, false, kUntouched, kUntouched, kUntouched},
                  {{std::nanf(""), 1, 1}, false, kUntouched, kUntouched, kUntouched}};
  for (const auto& c : channels) {
    unsigned short r = kUntouched, g = kUntouched, b = kUntouched;
    EXPECT_EQ(g3d_Color::HSVToRGB(c.hsv, r, g, b), c.delivered) << "hue " << c.hsv.h;
    EXPECT_EQ(std::tuple(r, g, b), std::tuple(c.r, c.g, c.b)) << "hue " << c.hsv.h;
  }
}

TEST(ColorTest, ContrastAgainstBackgrounds) {
  EXPECT_EQ(g3d_Color::GetContrastingColor({1, 1, 1}), g3d_Color(0, 0, 0));
  EXPECT_EQ(g3d_Color::GetContrastingColor({0, 0, 0.5f}), g3d_Color(1, 1, 1));
  const g3d_Color grey(0.5f, 0.5f, 0.5f);
  // The complement, keeping the alpha.
  EXPECT_EQ(g3d_Color(1, 1, 1, 0.5f).Invert({1, 1, 1}, 0.25f), g3d_Color(0, 0, 0, 0.5f));
  EXPECT_EQ(g3d_Color(grey).Invert(grey, 0.25f), g3d_Color(0, 0, 0));  // complement too close
  EXPECT_EQ(g3d_Color(1, 0, 0).Invert({0, 0, 0}, 0.25f), g3d_Color(1, 0, 0));  // already apart
}

TEST(ColorArrayTest, PaletteStoresClampedPackedColors) {
  g3d_ColorArray palette;
  EXPECT_EQ(palette.Append({2, -1, 0.5f, 1}), 0u);
  EXPECT_EQ(palette.GetColor(0u).GetRGBA(), 0xFF007FFFu);
  palette.Append({1, 1, 1, 1});
  const g3d_ColorArray copy = palette;
  palette.SetAlpha(0);
  EXPECT_EQ(std::tuple(palette.GetColor(1u).a, copy.GetColor(1u).a), std::tuple(0.0f, 1.0f));
  palette.ContrastColors({1, 1, 1});
  float r = 0, g = 0, b = 0;
  palette.GetColor(1u, r, g, b);
  EXPECT_EQ(r + g + b, 0.0f);
  EXPECT_THROW(palette.GetColor(7u), nex_TextException);
  palette.Cleanup();
  EXPECT_EQ(palette.Length(), 0);
}

TEST(ColorRampTest, RainbowGreysWrapAndInterpolation) {
  const g3d_Color red(1, 0, 0, 0.5f), green(0, 1, 0, 0.5f), blue(0, 0, 1, 0.5f);
  g3d_Color ramp[3];
  g3d_Utils::Rainbow(ramp, 3, false, 0.5f);
  EXPECT_EQ(std::tuple(ramp[0], ramp[1], ramp[2]), std::tuple(red, green, blue));
  g3d_Utils::Rainbow(ramp, 3, true, 0.5f);
  EXPECT_EQ(std::tuple(ramp[0], ramp[2]), std::tuple(blue, red));
  g3d_Utils::BlueToRed(ramp, 3, false, 0.5f);
  EXPECT_EQ(std::tuple(ramp[0], ramp[2]), std::tuple(blue, red));
  g3d_Color one[1];
  g3d_Utils::Rainbow(one, 1, false, 1);
  EXPECT_EQ(one[0], g3d_Color(1, 0, 0));
  g3d_Color greys[5];
  g3d_Utils::BlackToWhite(greys, 5, false, 1);
  const g3d_Color black(0, 0, 0), grey(0.5f, 0.5f, 0.5f), white(1, 1, 1);
  EXPECT_EQ(std::tuple(greys[2], greys[4]), std::tuple(grey, white));
  g3d_Color wheel[6];
  g3d_Utils::WrapAround(wheel, 6, 1);
  // The opposite hue halfway; the last is not red again.
  EXPECT_EQ(std::tuple(wheel[0], wheel[3], wheel[5]),
            std::tuple(g3d_Color(1, 0, 0), g3d_Color(0, 1, 1), g3d_Color(1, 0, 1)));
  g3d_Color mixed[5];
  g3d_Utils::FillInColorsAndInterpolate({"Black", "White", "#FF0000"}, 5, mixed);
  EXPECT_EQ(std::tuple(mixed[0], mixed[1], mixed[2], mixed[4]),
            std::tuple(black, grey, white, g3d_Color(1, 0, 0)));
  EXPECT_THROW(g3d_Utils::FillInColorsAndInterpolate({"Black", "Nope"}, 5, mixed),
               g3d_ColorErrorException);
}

}  // namespace
