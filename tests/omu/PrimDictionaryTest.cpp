#include "OmuTestSupport.h"

#include <omi_complex.h>

// BindingTest reads every number kind through a dictionary, here the other kinds; copies and
// their identities are tests/mdl/ArchiveIdentityTest.cpp's.
TEST(PrimDictionary, TypedReadsTakeOnlyTheirKinds) {
  StrDict dict;
  dict.Put(3, "int");
  dict.Put(cow_String("it's"), "text");
  dict.Put(cow_List<int>{1, 2}, "ints");
  dict.Put(omi_complex(1, 2), "complex");
  int i = -1;
  EXPECT_EQ(dict.Get(i, "missing"), 0);
  EXPECT_EQ(i, -1);
  cow_String text;
  EXPECT_EQ(dict.Get(text, "int"), 0);
  EXPECT_EQ(dict.Get(text, "text"), 1);
  EXPECT_EQ(text, "it's");
  const char* chars = nullptr;
  EXPECT_EQ(dict.Get(chars, "text"), 1);
  EXPECT_STREQ(chars, "it's");
  cow_List<double> numbers;
  EXPECT_EQ(dict.Get(numbers, "ints"), 1);
  EXPECT_EQ(numbers, (cow_List<double>{1.0, 2.0}));
  omu_PrimList list;
  EXPECT_EQ(dict.Get(list, "ints"), 1);
  EXPECT_EQ(list.Size(), 2);
  omi_complex c;
  EXPECT_EQ(dict.Get(c, "complex"), 1);
  EXPECT_EQ(c.Imag(), 2.0);
  EXPECT_TRUE(dict.Get("missing").IsType('n'));
}

TEST(PrimDictionary, EqualityAndTextIgnoreInsertionOrder) {
  StrDict first;
  first.Put(1, "b");
  first.Put(cow_String("x"), "a");
  StrDict second;
  second.Put(cow_String("x"), "a");
  second.Put(1, "b");
  EXPECT_TRUE(first == second);
  EXPECT_EQ(first.AsString(0), second.AsString(0));
  second.Put(2, "b");
  EXPECT_FALSE(first == second);
  second.Put(1, "b");
  second.Put(1, "c");
  EXPECT_FALSE(first == second);
  EXPECT_FALSE(first == IntDict());
  IntDict numbers;
  numbers.Put(0.5, 10);
  numbers.Put(cow_String("it's"), -2);
  EXPECT_EQ(numbers.AsString(0), "{-2: \"it's\", 10: 0.5}");
  EXPECT_EQ(numbers.TypeString(), "dictionary with integer keys");
  EXPECT_EQ(first.TypeString(), "dictionary with string keys");
}
