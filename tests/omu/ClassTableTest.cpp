#include "LibraryEnvironment.h"

#include <UTI_Modules.h>
#include <cls_MetadataRegistrar.h>
#include <nex_Exception.h>
#include <typ_ArchCompTable.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>

namespace {
const cls_ClassRegistrar& Registry() { return cls_MetadataRegistrar::Instance().Registrar(); }
const typ_ArchCompEntry& Table(unsigned int module) {
  return *typ_ArchCompTable::Instance().Entry(static_cast<int>(module));
}

}  // namespace

TEST(ClassTable, HeadersAndRecordCountsAreExact) {
  const unsigned char header[16] = {0, 0, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};
  for (const auto& [module, count] : {std::pair{19u, 50}, {10u, 26}, {36u, 4}}) {
    const typ_ArchCompEntry& table = Table(module);
    EXPECT_EQ(table.RecordCount(), count) << module;
    EXPECT_EQ(std::memcmp(table.Header(), header, sizeof header), 0) << module;
    EXPECT_EQ(reinterpret_cast<const unsigned char*>(table.Records()) -
                  reinterpret_cast<const unsigned char*>(table.Header()),
              16);
    const typ_ArchCompRecord& terminator = table.Records()[count - 1];
    const typ_ArchCompRecord zero{};
    EXPECT_EQ(std::memcmp(&terminator, &zero, sizeof zero), 0) << module;
  }
}

TEST(ClassTable, EveryRegisteredClassMatchesItsRow) {
  for (const cls_ClassMetadata* md : Registry().Classes()) {
    const unsigned int module = cls_ModuleOf(md->TypeId());
    if (module == cls_ExceptionModule || module == cls_ContainerModule) continue;
    SCOPED_TRACE(md->Name().StdString());
    const typ_ArchCompRecord* row = Table(module).Row(cls_ClassOf(md->TypeId()));
    ASSERT_NE(row, nullptr);
    ASSERT_NE(row->name, nullptr);
    // Two registration names differ from their rows on purpose.
    const std::string rowName = row->name;
    if (md->Name() == "omu_PrimEnum") {
      EXPECT_EQ(rowName, "omu_PrimEnumBase");
    } else if (md->Name() == "mdl_PropList1DArrayListFloat") {
      EXPECT_EQ(rowName, "mdl_Prop1DArrayListFloat");
    } else {
      EXPECT_EQ(md->Name(), rowName);
    }
    EXPECT_EQ(md->ParentTypeId(), cls_MakeTypeId(row->parentModule, row->parentClass));
    EXPECT_EQ(row->kind == 4, Registry().IsA(md->TypeId(), nex_Exception::TypeId()));
  }
}
