#include "LibraryEnvironment.h"
#include "TestArchive.h"

#include <mdl_JaggedArray.h>
#include <mdl_Repository.h>
#include <nex_TextException.h>

#include <gtest/gtest.h>

TEST(ModelClasses, ExtensionsAndRepositoriesRoundTripAndAForeignRowIsRefused) {
  mdl_Repository repository("parts");
  EXPECT_TRUE(repository.AddKey("Part-1"));
  EXPECT_TRUE(repository.AddKey("Part-2"));
  EXPECT_FALSE(repository.AddKey("Part-1"));
  const auto loaded = RoundTrip<mdl_Extension>(repository);
  ASSERT_EQ(loaded->DynTypeId(), mdl_Repository::TypeId());
  EXPECT_EQ(static_cast<const mdl_Repository&>(*loaded), repository);
  EXPECT_EQ(*RoundTrip<mdl_Extension>(mdl_Extension("ext")), mdl_Extension("ext"));
  // A jagged array's row of the wrong kind is refused (ragged and empty rows round trip in the
  // model-wide identity test).
  const ForgedRecord rows{mdl_JaggedArray::TypeId(),
                          {{"rows", cls_Value::List{cls_Value::List{1.0}, cow_String("x")}}}};
  EXPECT_THROW(RoundTrip<mdl_JaggedArray>(rows), nex_TextException);
}
