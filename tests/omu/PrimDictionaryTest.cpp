#include "OmuTestSupport.h"

#include <omi_complex.h>

namespace {
// Whether a typed read found the key, then the value it leaves, in the library's text.
template <class T>
std::string Read(const StrDict& dict, const char* key, T value = T()) {
  const int found = dict.Get(value, key);
  return std::to_string(found) + " " + Text(*omu_PrimOwn(value));
}
}  // namespace

// BindingTest reads every number kind through a dictionary, fuzz_dictionary ints and texts
// against a map (missing keys, a kind read as the other), here the other kinds; copies and
// their identities are tests/mdl/ArchiveIdentityTest.cpp's.
TEST(PrimDictionary, TypedReadsTakeOnlyTheirKindsAndEqualityAndTextIgnoreInsertionOrder) {
  StrDict dict;
  dict.Put(cow_String("it's"), "text");
  dict.Put(cow_List<int>{1, 2}, "ints");
  dict.Put(omi_complex(1, 2), "complex");
  const std::pair<std::string, const char*> cases[] = {
      {Read<const char*>(dict, "text", ""), "1 \"it's\""},
      {Read<cow_List<double>>(dict, "ints"), "1 (1.0, 2.0)"},
      {Read<omu_PrimList>(dict, "ints"), "1 (1, 2)"},
      {Read<omi_complex>(dict, "complex"), "1 1+2j"},
  };
  for (const auto& [got, expected] : cases) EXPECT_EQ(got, expected);
  EXPECT_TRUE(dict.Get("missing").IsType('n'));
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
