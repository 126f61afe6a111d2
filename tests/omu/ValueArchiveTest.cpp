// Many values in one archive, read back equal; with CVX_FUZZ_SEEDS set, each archive is
// also written there as a seed for the archive fuzzer.
#include "OmuTestSupport.h"

#include <omu_PrimArray.h>
#include <omu_PrimNone.h>
#include <omu_PrimPath.h>

#include <cstdlib>
#include <fstream>
#include <vector>

namespace {
std::vector<std::unique_ptr<omu_Primitive>> Values() {
  std::vector<std::unique_ptr<omu_Primitive>> values;
  omu_PrimDictionary<cow_String> members;
  members.Put(cow_List<int>{1, 2}, "ids");
  members.Put(omi_complex(0, 1), "i");
  values.emplace_back(members.Copy());
  values.emplace_back(members.Copy());  // the same entries: written once, then referred to
  omu_PrimList list(4, 6, '(');
  list.Put(omu_PrimPath({"mdb", "models"}, 'r'));
  list.Put(omu_OnOffConst(true));
  list.Put(cow_String("it's"));
  list.Put(new omu_PrimBoolean(false));
  values.emplace_back(list.Copy());
  const int dims[] = {2, 3};
  const int ints[] = {1, 2, 3, 4, 5, 6};
  values.emplace_back(new omu_PrimArray(2, dims, omu_PrimNumber::INT, ints));
  omu_PrimDictionary<int> numbers;
  numbers.Put(new omu_PrimNone(), 5);
  numbers.Put(2.5f, -1);
  values.emplace_back(numbers.Copy());
  return values;
}
}  // namespace

TEST(ValueArchive, ManyValuesInOneArchiveReadBackEqual) {
  const auto values = Values();
  cls_Archive archive;
  for (const auto& value : values) value->DBWrite(archive.NewRoot());
  const cls_Archive loaded = SaveAndLoad(archive, "values");
  ASSERT_EQ(loaded.RootCount(), static_cast<int>(values.size()));
  for (int i = 0; i < loaded.RootCount(); ++i) {
    const auto back = loaded.Read<omu_Primitive>(i);
    EXPECT_TRUE(*back == *values[static_cast<std::size_t>(i)]) << values[static_cast<std::size_t>(i)]->AsString(0).StdString();
  }
  if (const char* folder = std::getenv("CVX_FUZZ_SEEDS")) {
    for (std::size_t i = 0; i < values.size(); ++i) {
      cls_Archive single;
      single.Add(*values[i]);
      std::ofstream(std::string(folder) + "/values-" + std::to_string(i), std::ios::binary) << single.ToBytes();
    }
    std::ofstream(std::string(folder) + "/values-all", std::ios::binary) << archive.ToBytes();
  }
}
