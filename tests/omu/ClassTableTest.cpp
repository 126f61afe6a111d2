#include "LibraryEnvironment.h"

#include <UTI_Modules.h>
#include <cls_MetadataRegistrar.h>
#include <nex_Exception.h>
#include <typ_ArchCompTable.h>

#include <gtest/gtest.h>

#include <map>
#include <string>

TEST(ClassTable, EveryRegisteredClassMatchesItsRow) {
  const cls_ClassRegistrar& registry = cls_MetadataRegistrar::Instance().Registrar();
  // Two registration names differ from their rows on purpose.
  const std::map<std::string, std::string> renamed = {
      {"omu_PrimEnum", "omu_PrimEnumBase"},
      {"mdl_PropList1DArrayListFloat", "mdl_Prop1DArrayListFloat"}};
  for (const cls_ClassMetadata* md : registry.Classes()) {
    const unsigned int module = cls_ModuleOf(md->TypeId());
    if (module == cls_ExceptionModule || module == cls_ContainerModule) continue;
    SCOPED_TRACE(md->Name().StdString());
    const typ_ArchCompEntry* table = typ_ArchCompTable::Instance().Entry(static_cast<int>(module));
    ASSERT_NE(table, nullptr);
    const typ_ArchCompRecord* row = table->Row(cls_ClassOf(md->TypeId()));
    ASSERT_NE(row, nullptr);
    ASSERT_NE(row->name, nullptr);
    const auto rename = renamed.find(md->Name().StdString());
    EXPECT_EQ(rename == renamed.end() ? md->Name().StdString() : rename->second, row->name);
    EXPECT_EQ(md->ParentTypeId(), cls_MakeTypeId(row->parentModule, row->parentClass));
    EXPECT_EQ(row->kind == 4, registry.IsA(md->TypeId(), nex_Exception::TypeId()));
  }
}
