#include "LibraryEnvironment.h"

#include <UTI_Modules.h>
#include <cls_MetadataRegistrar.h>
#include <nex_Exception.h>
#include <typ_ArchCompTable.h>

#include <gtest/gtest.h>

#include <cstring>
#include <string>
#include <vector>

namespace {
const cls_ClassRegistrar& Registry() { return cls_MetadataRegistrar::Instance().Registrar(); }
const typ_ArchCompEntry& Table(unsigned int module) {
  return *typ_ArchCompTable::Instance().Entry(static_cast<int>(module));
}

struct Row {
  unsigned int module, number, kind, parentModule, parentClass;
  const char* name;
};
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

TEST(ClassTable, RowsCarryKindParentAndName) {
  const Row rows[] = {
      {19, 1, 4, 31, 3, "omu_TypeErrorException"},  {19, 2, 4, 19, 1, "omu_KeywordTypeErrorException"},
      {19, 14, 0, 0, 1, nullptr},                    {19, 17, 7, 0, 1, "omu_Primitive"},
      {19, 21, 7, 19, 25, "omu_PrimList"},           {19, 25, 7, 19, 32, "omu_PrimTuple"},
      {19, 27, 7, 19, 17, "omu_PrimEnumBase"},       {19, 28, 7, 0, 1, "omu_QueryPathMsg"},
      {19, 35, 4, 19, 1, "omu_GenericTypeErrorException"},
      {19, 36, 7, 19, 17, "omu_PrimComplex"},        {19, 37, 7, 19, 27, "omu_OnOffConst"},
      {19, 40, 4, 31, 3, "omu_GuiAccessErrorException"},
      {19, 42, 7, 19, 45, "omu_DictPyObjectWrapper"}, {19, 47, 7, 19, 17, "omu_PrimException"},
      {19, 48, 7, 19, 17, "omu_PrimTranslatedString"}, {19, 49, 7, 19, 17, "omu_PrimBoolean"},
      {10, 1, 7, 10, 13, "mdl_Repository"},          {10, 12, 0, 0, 1, nullptr},
      {10, 18, 7, 0, 1, "mdl_PropertyTable"},        {10, 22, 7, 0, 1, "mdl_Prop1DArrayListFloat"},
      {10, 25, 7, 0, 1, "mdl_JaggedArray"},          {36, 1, 7, 0, 1, "g3d_Vector"},
      {36, 3, 4, 31, 3, "g3d_ColorErrorException"},
  };
  for (const Row& row : rows) {
    const typ_ArchCompRecord* record = Table(row.module).Row(row.number);
    ASSERT_NE(record, nullptr);
    SCOPED_TRACE(std::to_string(row.module) + ":" + std::to_string(row.number));
    EXPECT_EQ(record->kind, row.kind);
    EXPECT_EQ(record->parentModule, row.parentModule);
    EXPECT_EQ(record->parentClass, row.parentClass);
    if (row.name) {
      EXPECT_STREQ(record->name, row.name);
    } else {
      EXPECT_EQ(record->name, nullptr);
    }
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

TEST(Registration, TheOmuListKeepsItsOrderPhasesAndWords) {
  // The whole list, in order; classes of later work join it where they stand here.
  const std::vector<std::pair<std::string, int>> expected = {
      {"omu_ArgNumberErrorException", 2}, {"omu_ArgTypeErrorException", 2},
      {"omu_GenericTypeErrorException", 2}, {"omu_KeywordErrorException", 2},
      {"omu_KeywordTypeErrorException", 2}, {"omu_TypeErrorException", 2},
      {"omu_CorNameErrorException", 2}, {"omu_AttributeErrorException", 2},
      {"omu_RangeErrorException", 2}, {"omu_AccessErrorException", 2},
      {"omu_FontErrorException", 2}, {"omu_GuiAccessErrorException", 2},
      {"omu_IndexErrorException", 2}, {"omu_KeyErrorException", 2},
      {"omu_NameErrorException", 2}, {"omu_OverflowErrorException", 2},
      {"omu_ValueErrorException", 2}, {"omu_ZeroDivisionErrorException", 2},
      {"omu_Primitive", 7}, {"omu_PrimNumber", 3}, {"omu_PrimString", 3}, {"omu_PrimEnum", 7},
      {"omu_PrimDictionaryBase", 3}, {"omu_PrimStrDictionary", 3}, {"omu_PrimBoolean", 2},
      {"omu_PrimType", 2}, {"omu_PrimNone", 2}, {"omu_PrimPath", 2}, {"omu_PrimComplex", 2},
      {"omu_PrimExpr", 2}, {"omu_PrimTranslatedString", 2}, {"omu_PrimSequence", 2},
      {"omu_PrimTuple", 2}, {"omu_PrimList", 2}, {"omu_PrimArray", 2},
      {"omu_PrimIntDictionary", 2}, {"omu_PrimWrapper", 2}, {"omu_PrimException", 2},
      {"omu_OnOffConst", 2}, {"omu_QueryPathMsg", 2}};
  std::vector<std::pair<std::string, int>> actual;
  for (const auto& registration : cls_MetadataRegistrar::Instance().Registrations()) {
    const unsigned int first = registration.typeIds.front();
    if (cls_ModuleOf(first) != omu_ModuleNumber) continue;
    actual.emplace_back(Registry().Find(first)->Name().StdString(), registration.phase);
  }
  auto next = expected.begin();
  for (const auto& entry : actual) {
    next = std::find(next, expected.end(), entry);
    ASSERT_NE(next, expected.end()) << entry.first << " is out of order or has the wrong phase";
  }
  for (const auto& [name, word] : {std::pair{"omu_Primitive", 514u}, {"omu_PrimEnum", 514u},
                                   {"omu_PrimNone", 800u}, {"omu_KeyErrorException", 800u}}) {
    bool found = false;
    for (const cls_ClassMetadata* md : Registry().Classes()) {
      if (md->Name() != name) continue;
      found = true;
      EXPECT_EQ(md->MetadataWord(), word) << name;
    }
    EXPECT_TRUE(found) << name;
  }
}
