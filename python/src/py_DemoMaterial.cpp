#include "py_DemoMaterial.h"

#include <omu_AccessErrorException.h>
#include <omu_Arguments.h>
#include <omu_NameString.h>
#include <omu_OperationRules.h>
#include <omu_PrimString.h>
#include <omu_RangeChecker.h>
#include <omu_ReturnPrim.h>

namespace {
constexpr const char* kSource = "python/src/py_DemoMaterial";
}

py_DemoMaterial::py_DemoMaterial(std::shared_ptr<Record> record)
    : omu_PrimLeaf(omu_Shortcut("mdb.models['Model-1'].materials[" +
                                omu_NameString(record->name).StdString() + "]"),
                   omu_OperationRules(true)),
      m_Record(std::move(record)) {
  static const methodTable methods[] = {
      {"sort", &Call<py_DemoMaterial, &py_DemoMaterial::Sort>},
      {"validate", &Call<py_DemoMaterial, &py_DemoMaterial::Validate>},
      {"delete", &Call<py_DemoMaterial, &py_DemoMaterial::Delete>},
      {nullptr, nullptr}};
  static const memberTable members[] = {
      {"name", &Read<py_DemoMaterial, &py_DemoMaterial::Name>, nullptr},
      {"elastic", &Read<py_DemoMaterial, &py_DemoMaterial::Elastic>,
       &Write<py_DemoMaterial, &py_DemoMaterial::SetElastic>},
      {nullptr, nullptr, nullptr}};
  DescribeType("Material", methods, members);
}

py_DemoMaterial::Record& py_DemoMaterial::Live() const {
  if (m_Record->deleted) NEX_THROW(omu_AccessErrorException(PathString()), kSource);
  return *m_Record;
}

omu_Primitive* py_DemoMaterial::Name() const { return new omu_PrimString(Live().name); }

omu_Primitive* py_DemoMaterial::Elastic() const { return omu_ReturnPrim(Live().elastic.Table()); }

omu_Primitive* py_DemoMaterial::SetElastic(omu_Arguments& args) const {
  Record& record = Live();
  cow_2DArray<double> rows;
  args.Begin();
  args.Get(rows, "elastic");
  args.End("elastic");
  mdl_PropertyTable table(rows);
  table.AssertValid();
  record.elastic = table;
  return Elastic();
}

omu_Primitive* py_DemoMaterial::Sort(omu_Arguments& args) {
  Record& record = Live();
  int keyColumns = 0;
  args.Begin();
  args.Get(keyColumns, "keyColumns");
  args.End("sort");
  SortAndValidate(record.elastic, keyColumns);
  return nullptr;
}

omu_Primitive* py_DemoMaterial::Validate(omu_Arguments& args) {
  args.Begin();
  args.End("validate");
  Live().elastic.AssertValid();
  return nullptr;
}

omu_Primitive* py_DemoMaterial::Delete(omu_Arguments& args) {
  args.Begin();
  args.End("delete");
  Live().deleted = true;
  SetStale(true);
  return nullptr;
}

void py_DemoMaterial::SortAndValidate(mdl_PropertyTable& table, int keyColumns) {
  omu_RangeChecker::CheckInRange("keyColumns", 1, true, keyColumns, table.Columns(), true);
  table.Sort(keyColumns);
  table.AssertValid();
}
