#include "OmuTestSupport.h"

#include <omu_BoolSelectEnum.h>
#include <omu_PrimEnum.h>
#include <omu_TextRepr.h>

#include <climits>

// Reading, Alternative, End and tables are ArgumentsTest's, as arguments are tuples; tables read
// through the binding are python/tests/test_values.py's too.

TEST(PrimTuple, EnumerationArgumentsAreCheckedByName) {
  omu_PrimTuple tuple = TupleOf({new omu_OnOffConst(true), new omu_PrimEnumBase("TRUE_FALSE")});
  omu_PrimEnum<omu_BoolSelectEnum, 1> select(omu_BOOL_SELECT_ON_OFF);
  tuple.Get(select);
  EXPECT_EQ(tuple.ErrorArg(), 1);
  EXPECT_EQ(tuple.TypeExpected(), "ON_OFF or TRUE_FALSE");
  EXPECT_EQ(tuple.TypeFound(), "ON");  // a constant is named by its text
  tuple.Begin();
  tuple.Optional();
  tuple.Get(select);
  EXPECT_TRUE(tuple.Alternative());
  omu_PrimEnumBase any;
  tuple.Get(any);
  tuple.Get(select);
  EXPECT_TRUE(select == omu_BOOL_SELECT_TRUE_FALSE);
}

TEST(PrimTuple, CollectionsGoInAndComeBackOut) {
  omu_PrimTuple tuple(4);
  tuple.Put(cow_List<int>{1, 2, 3});
  tuple.Put(cow_List<bool>{true, false});
  tuple.Put(cow_Map<cow_String, float>{{"b", 2.0f}, {"a", 1.0f}});
  tuple.Put(cow_List<double>{0.5});
  EXPECT_EQ(tuple.AsString(0), "((1, 2, 3), (True, False), {'a': 1.0, 'b': 2.0}, (0.5,))");
  tuple.Begin();
  cow_List<int> ints, wrong{9};
  cow_List<bool> flags;
  cow_Map<cow_String, float> map;
  tuple.Get(ints);
  tuple.Get(flags);
  tuple.Get(map);
  tuple.Get(wrong);  // 0.5 is no int
  EXPECT_EQ(ints, (cow_List<int>{1, 2, 3}));
  EXPECT_EQ(flags, (cow_List<bool>{true, false}));
  EXPECT_EQ(*map.Find("b"), 2.0f);
  EXPECT_EQ(wrong, cow_List<int>{9});
  EXPECT_EQ(tuple.ErrorArg(), 4);
  EXPECT_EQ(tuple.TypeExpected(), "sequence of int");
}

TEST(PrimTuple, TextFollowsTheOneElementCommaRule) {
  omu_PrimTuple holey(3);
  holey.Put(new omu_PrimNumber(1));  // slots 1 and 2 stay empty
  EXPECT_EQ(holey.AsString(0), "(1,)");
  EXPECT_EQ(TupleOf({new omu_PrimNumber(1), StringOf("a")}).AsRepr(), "(1, 'a')");
  omu_TextRepr::Instance().SetMaxElementsInSequence(2);
  EXPECT_EQ(ListOf({1, 2, 3}).AsString(0), "(1, 2)");
  omu_TextRepr::Instance().SetMaxElementsInSequence(INT_MAX);
}

namespace {
// The text of the list an operation makes, or where and why it failed.
std::string Made(const std::function<omu_PrimSequence*()>& operation) {
  try {
    const std::unique_ptr<omu_PrimSequence> made(operation());
    return Text(*made) + (made->DynTypeId() == omu_PrimList::TypeId() ? "" : " (not a list)");
  } catch (const nex_TextException& e) {
    return std::string(e.SourcePath()) + ": " + Message(e);
  }
}
}  // namespace

// A missing element is reported where it is found.
TEST(PrimList, SliceRepeatAndConcat) {
  const omu_PrimList list = ListOf({10, 11, 12, 13, 14});
  omu_PrimList tail = ListOf({15}), holey(2);
  const omu_PrimTuple holeyTuple(1);
  const char* const missing = "omu/impl/omu_PrimList: List Index returned NULL";
  const struct {
    const char* what;
    std::string made;
    const char* text;
  } cases[] = {
      {"[1:100]", Made([&] { return list.Slice(1, 100); }), "(11, 12, 13, 14)"},
      {"[-2:5]", Made([&] { return list.Slice(-2, 5); }), "(13, 14)"},
      {"[0:-1]", Made([&] { return list.Slice(0, -1); }), "(10, 11, 12, 13)"},
      {"[3:1]", Made([&] { return list.Slice(3, 1); }), "()"},
      {"[-100:2]", Made([&] { return list.Slice(-100, 2); }), "(10, 11)"},
      {"[2:2]", Made([&] { return list.Slice(2, 2); }), "()"},
      {"* 2", Made([&] { return list.Repeat(2); }), "(10, 11, 12, 13, 14, 10, 11, 12, 13, 14)"},
      {"* -1", Made([&] { return list.Repeat(-1); }), "()"},
      {"+", Made([&] { return list.Concat(&tail); }), "(10, 11, 12, 13, 14, 15)"},
      {"holey [0:2]", Made([&] { return holey.Slice(0, 2); }), missing},
      {"holey * 1", Made([&] { return holey.Repeat(1); }), missing},
      {"+ holey", Made([&] { return list.Concat(&holey); }), missing},
      {"holey tuple [0:1]", Made([&] { return holeyTuple.Slice(0, 1); }),
       "omu/impl/omu_PrimTuple: Tuple Index returned NULL"},
  };
  for (const auto& c : cases) EXPECT_EQ(c.made, c.text) << c.what;
}

TEST(PrimTuple, CopiesShareUntilAnElementIsWrittenAndFillUpToTheirSize) {
  omu_PrimTuple tuple = TupleOf({new omu_PrimNumber(1), StringOf("s")});
  const omu_PrimTuple copy(tuple);
  static_cast<omu_PrimString&>(tuple[1]).Concat(omu_PrimString(cow_String("!")));
  EXPECT_EQ(Text(*tuple.Index(1)), "'s!'");
  EXPECT_EQ(Text(*copy.Index(1)), "'s'");
  EXPECT_EQ(copy.Index(0), tuple.Index(0));  // the untouched element is still shared
  EXPECT_FALSE(copy == tuple);
  omu_PrimTuple one(1);
  one.Put(1.5);
  EXPECT_THROW(one.Put(2), nex_TextException);
  omu_PrimList full(0, 2, '(');  // a list grows up to its maximum size
  full.Put(1);
  full.Put(2);
  EXPECT_THROW(full.Put(3), nex_TextException);
}
