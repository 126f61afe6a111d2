#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <nex_TextException.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_BoolSelectEnum.h>
#include <omu_PrimBool.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimEnum.h>
#include <omu_PrimList.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>
#include <omu_TextRepr.h>

#include <gtest/gtest.h>

#include <functional>
#include <memory>

namespace {
omu_PrimTuple TupleOf(std::initializer_list<omu_Primitive*> values) {
  omu_PrimTuple tuple(static_cast<int>(values.size()));
  for (omu_Primitive* value : values) tuple.Put(value);
  tuple.Begin();
  return tuple;
}

omu_PrimList ListOf(std::initializer_list<int> values) {
  return omu_PrimList(cow_List<int>(values), '(');
}

std::string Text(const omu_Primitive* value) { return value->AsString(0).StdString(); }
}  // namespace

TEST(PrimTuple, CountingRulesOfEnd) {
  struct Case {
    const char* name;
    int size;
    int required;
    int optional;
    int expectedFound;  // -1: no error
  } cases[] = {
      {"optional read past the end", 2, 2, 1, -1},
      {"a value left over", 3, 2, 0, 3},
      {"too few values", 1, 2, 0, 1},
      {"all optional", 0, 0, 2, -1},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    omu_PrimTuple tuple(c.size);
    for (int i = 0; i < c.size; ++i) tuple.Put(i);
    tuple.Begin();
    int out = 0;
    for (int i = 0; i < c.required; ++i) tuple.Get(out);
    tuple.Optional();
    for (int i = 0; i < c.optional; ++i) tuple.Get(out);
    if (c.expectedFound < 0) {
      EXPECT_NO_THROW(tuple.End("f"));
      continue;
    }
    try {
      tuple.End("f");
      ADD_FAILURE() << "no count error";
    } catch (const omu_ArgNumberErrorException& e) {
      EXPECT_EQ(e.Expecting(), c.required);
      EXPECT_EQ(e.Found(), c.expectedFound);
      EXPECT_EQ(e.NestingStr(), "f");
    }
  }
}

TEST(PrimTuple, TypeErrorNamesTheFirstBadArgument) {
  omu_PrimTuple tuple = TupleOf({new omu_PrimString(cow_String("x")), new omu_PrimNumber(1.5)});
  int i = 7;
  double d = 0;
  tuple.Get(i);
  tuple.Get(d);  // not examined once an error is recorded
  EXPECT_EQ(i, 7);
  EXPECT_EQ(d, 0);
  try {
    tuple.End("");
    ADD_FAILURE();
  } catch (const omu_ArgTypeErrorException& e) {
    EXPECT_EQ(e.ArgNum(), 1);
    EXPECT_EQ(e.Expecting(), "int");
    EXPECT_EQ(e.Found(), "string");
  }
}

TEST(PrimTuple, ScalarAcceptance) {
  struct Case {
    omu_PrimNumber number;
    bool intOk;
    bool doubleOk;
  } cases[] = {
      {omu_PrimNumber(3), true, true},
      {omu_PrimNumber(3.0f), false, true},
      {omu_PrimNumber(static_cast<short>(3)), false, true},
      {omu_PrimNumber(3u), false, true},
      {omu_PrimNumber(static_cast<signed char>(3)), false, true},
  };
  for (const Case& c : cases) {
    omu_PrimTuple tuple = TupleOf({new omu_PrimNumber(c.number)});
    int i = 0;
    tuple.Get(i);
    EXPECT_EQ(tuple.ErrorArg() == 0, c.intOk) << Text(&c.number);
    if (!c.intOk) {
      EXPECT_EQ(tuple.TypeExpected(), "int");
    }
    tuple.Begin();
    double d = 0;
    tuple.Get(d);
    EXPECT_EQ(tuple.ErrorArg() == 0, c.doubleOk);
    EXPECT_EQ(d, 3.0);
  }
}

TEST(PrimTuple, BooleanReadsTryTheIntegerKinds) {
  struct Case {
    omu_Primitive* value;
    int errorArg;
    bool result;
  } cases[] = {
      {new omu_PrimBoolean(true), 0, true},
      {new omu_PrimNumber(1), 0, true},
      {new omu_PrimNumber(static_cast<short>(0)), 0, false},
      {new omu_PrimNumber(2), 1, true},
      {new omu_PrimString(cow_String("yes")), 1, true},
      {new omu_PrimNumber(1.0), 1, true},
  };
  for (const Case& c : cases) {
    omu_PrimTuple tuple = TupleOf({c.value});
    const std::string text = Text(tuple.Index(0));
    bool out = true;
    tuple.Get(out);
    EXPECT_EQ(tuple.ErrorArg(), c.errorArg) << text;
    EXPECT_EQ(out, c.result) << text;
    EXPECT_EQ(tuple.Cursor(), 1) << text;
    EXPECT_EQ(tuple.NumGets(), 1) << text;
    if (c.errorArg) {
      EXPECT_EQ(tuple.TypeExpected(), "Boolean") << text;
    }
  }
}

TEST(PrimTuple, AlternativeUndoesOnlyAFailedLastRead) {
  omu_PrimTuple tuple = TupleOf({new omu_PrimNumber(1), new omu_PrimString(cow_String("s"))});
  int i = 0;
  tuple.Get(i);
  EXPECT_FALSE(tuple.Alternative());
  EXPECT_EQ(tuple.Cursor(), 1);
  tuple.Get(i);
  EXPECT_TRUE(tuple.Alternative());
  EXPECT_EQ(tuple.Cursor(), 1);
  EXPECT_EQ(tuple.ErrorArg(), 0);
  cow_String s;
  tuple.Get(s);
  EXPECT_EQ(s, "s");
  EXPECT_NO_THROW(tuple.End("f"));
}

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
  omu_PrimTuple tuple(5);
  tuple.Put(cow_List<int>{1, 2, 3});
  tuple.Put(cow_List<bool>{true, false});
  cow_2DArray<double> matrix(2, 2);
  matrix.Set(1, 0, 3.5);
  tuple.Put(matrix);
  tuple.Put(cow_Map<cow_String, float>{{"b", 2.0f}, {"a", 1.0f}});
  tuple.Put(cow_List<double>{0.5});
  EXPECT_EQ(tuple.AsString(0),
            "((1, 2, 3), (True, False), ((0.0, 0.0), (3.5, 0.0)), {'a': 1.0, 'b': 2.0}, (0.5,))");
  tuple.Begin();
  cow_List<int> ints;
  cow_List<bool> flags;
  cow_2DArray<double> back;
  cow_Map<cow_String, float> map;
  cow_List<int> wrong{9};
  tuple.Get(ints);
  tuple.Get(flags);
  tuple.Get(back);
  tuple.Get(map);
  tuple.Get(wrong);  // 0.5 is no int
  EXPECT_EQ(ints, (cow_List<int>{1, 2, 3}));
  EXPECT_EQ(flags, (cow_List<bool>{true, false}));
  EXPECT_EQ(back, matrix);
  EXPECT_EQ(*map.Find("b"), 2.0f);
  EXPECT_EQ(wrong, cow_List<int>{9});
  EXPECT_EQ(tuple.ErrorArg(), 5);
  EXPECT_EQ(tuple.TypeExpected(), "sequence of int");
}

TEST(PrimTuple, RaggedRowsAreNoTwoDimensionalArray) {
  omu_PrimTuple rows(2);
  rows.Put(cow_List<double>{1, 2});
  rows.Put(cow_List<double>{3});
  omu_PrimTuple outer = TupleOf({rows.Copy()});
  cow_2DArray<double> out;
  outer.Get(out);
  EXPECT_EQ(outer.ErrorArg(), 1);
  EXPECT_TRUE(out.IsEmpty());
}

TEST(PrimTuple, TextFollowsTheOneElementCommaRule) {
  EXPECT_EQ(omu_PrimTuple(0).AsString(0), "()");
  EXPECT_EQ(TupleOf({new omu_PrimNumber(2.0)}).AsString(0), "(2.0,)");
  EXPECT_EQ(TupleOf({new omu_PrimNumber(1), new omu_PrimString(cow_String("a"))}).AsRepr(), "(1, 'a')");
  omu_PrimTuple holey(3);
  holey.Put(new omu_PrimNumber(1));  // slots 1 and 2 stay empty
  EXPECT_EQ(holey.AsString(0), "(1,)");
  omu_TextRepr& repr = omu_TextRepr::Instance();
  repr.SetMaxElementsInSequence(2);
  EXPECT_EQ(ListOf({1, 2, 3}).AsString(0), "(1, 2)");
  repr.SetMaxElementsInSequence(INT_MAX);
}

TEST(PrimList, SlicingWithNegativeAndOutOfRangeBounds) {
  const omu_PrimList list = ListOf({10, 11, 12, 13, 14});
  const std::tuple<int, int, const char*> cases[] = {
      {1, 100, "(11, 12, 13, 14)"}, {-2, 5, "(13, 14)"}, {0, -1, "(10, 11, 12, 13)"},
      {3, 1, "()"},                 {-100, 2, "(10, 11)"}, {2, 2, "()"}};
  for (const auto& [from, to, text] : cases) {
    std::unique_ptr<omu_PrimSequence> slice(list.Slice(from, to));
    EXPECT_EQ(slice->AsString(0), text) << from << ":" << to;
    EXPECT_EQ(slice->DynTypeId(), omu_PrimList::TypeId());
  }
}

TEST(PrimList, RepeatConcatAndTheirMissingElementErrors) {
  const omu_PrimList list = ListOf({1, 2});
  std::unique_ptr<omu_PrimSequence> twice(list.Repeat(2));
  EXPECT_EQ(twice->AsString(0), "(1, 2, 1, 2)");
  std::unique_ptr<omu_PrimSequence> none(list.Repeat(-1));
  EXPECT_EQ(none->Size(), 0);
  omu_PrimList tail = ListOf({3});
  std::unique_ptr<omu_PrimSequence> joined(list.Concat(&tail));
  EXPECT_EQ(joined->AsString(0), "(1, 2, 3)");
  const omu_PrimList holey(2);
  const omu_PrimTuple holeyTuple(1);
  auto messageOf = [](const std::function<void()>& action) {
    try {
      action();
    } catch (const nex_TextException& e) {
      return e.Text().StdString() + " @" + e.SourcePath();
    }
    return std::string("no error");
  };
  EXPECT_EQ(messageOf([&] { delete holey.Slice(0, 2); }), "List Index returned NULL @omu/impl/omu_PrimList");
  EXPECT_EQ(messageOf([&] { delete holey.Repeat(1); }), "List Index returned NULL @omu/impl/omu_PrimList");
  EXPECT_EQ(messageOf([&] { delete list.Concat(const_cast<omu_PrimList*>(&holey)); }),
            "List Index returned NULL @omu/impl/omu_PrimList");
  EXPECT_EQ(messageOf([&] { delete holeyTuple.Slice(0, 1); }),
            "Tuple Index returned NULL @omu/impl/omu_PrimTuple");
}

TEST(PrimTuple, CopiesShareUntilAnElementIsWritten) {
  omu_PrimTuple tuple = TupleOf({new omu_PrimNumber(1), new omu_PrimString(cow_String("s"))});
  const omu_PrimTuple copy(tuple);
  EXPECT_EQ(copy.Index(0), tuple.Index(0));
  static_cast<omu_PrimString&>(tuple[1]).Concat(omu_PrimString(cow_String("!")));
  EXPECT_EQ(Text(tuple.Index(1)), "'s!'");
  EXPECT_EQ(Text(copy.Index(1)), "'s'");
  EXPECT_EQ(copy.Index(0), tuple.Index(0));  // the untouched element is still shared
  EXPECT_FALSE(copy == tuple);
}

TEST(PrimTuple, ListsGrowUpToTheirMaximumSize) {
  omu_PrimList list(0, 2, '(');
  list.Put(1);
  list.Put(2);
  EXPECT_EQ(list.Size(), 2);
  EXPECT_THROW(list.Put(3), nex_TextException);
  omu_PrimTuple tuple(1);
  tuple.Put(1);
  EXPECT_THROW(tuple.Put(2), nex_TextException);
}

TEST(PrimTuple, TuplesAndListsRoundTrip) {
  omu_PrimTuple tuple(4);
  tuple.Put(1.5);
  tuple.Put("text");
  tuple.Put(ListOf({1, 2}));
  tuple.Put(true);
  const auto back = RoundTrip<omu_PrimTuple>(tuple);
  EXPECT_TRUE(*back == tuple);
  EXPECT_EQ(back->AsString(0), "(1.5, 'text', (1, 2), True)");
  EXPECT_EQ(back->Cursor(), 4);
  omu_PrimList list(3, 10, '(');
  list.Put(1);  // two empty slots survive too
  const auto listBack = RoundTrip<omu_Primitive>(list);
  ASSERT_EQ(listBack->DynTypeId(), omu_PrimList::TypeId());
  EXPECT_EQ(static_cast<const omu_PrimList&>(*listBack).MaxSize(), 10);
  EXPECT_TRUE(*listBack == list);
}
