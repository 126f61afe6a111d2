#include "py_DemoCommands.h"

#include "py_Command.h"
#include "py_DemoMaterial.h"
#include "py_DemoModel.h"
#include "py_DemoSection.h"
#include "py_ReporterSlot.h"

#include <omu_Arguments.h>
#include <omu_CorvexName.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>
#include <omu_RangeChecker.h>
#include <wip_Progress.h>

#include <cmath>
#include <vector>

namespace py = pybind11;

namespace {
omu_Primitive* CreateMaterial(omu_Arguments& args) {
  omu_CorvexName name("Material-1", omu_GENERAL_NAME);
  cow_2DArray<double> elastic;
  int keyColumns = 2;
  args.Begin();
  args.Get(name, "name");
  args.Get(elastic, "elastic");
  args.Optional();
  args.Get(keyColumns, "keyColumns");
  args.End("createMaterial");
  auto record = std::make_shared<py_DemoMaterial::Record>(
      py_DemoMaterial::Record{name.Name(), mdl_PropertyTable(elastic)});
  py_DemoMaterial::SortAndValidate(record->elastic, keyColumns);
  py_DemoModel::Instance().Add(record);
  return new py_DemoMaterial(std::move(record));
}

omu_Primitive* CreateSection(omu_Arguments& args) {
  omu_CorvexName name("Section-1", omu_GENERAL_NAME);
  double thickness = 0;
  cow_String material;
  args.Begin();
  args.Get(name, "name");
  args.Get(thickness, "thickness");
  args.Optional();
  args.Get(material, "material");
  args.End("createSection");
  omu_RangeChecker::CheckGreaterThan("thickness", 0.0, false, thickness);
  auto record = std::make_shared<py_DemoSection::Record>();
  record->name = name.Name();
  record->thickness = thickness;
  if (!material.IsEmpty()) record->material = material;
  record->statuses.Append(CREATED);
  py_DemoModel::Instance().Add(record);
  return new py_DemoSection(std::move(record));
}

omu_Primitive* ValidateName(omu_Arguments& args) {
  cow_String name;
  int kind = omu_GENERAL_NAME;
  args.Begin();
  args.Get(name, "name");
  args.Optional();
  args.Get(kind, "kind");
  args.End("validateName");
  omu_RangeChecker::CheckInRange("kind", omu_GENERAL_NAME, true, kind, omu_LONG_NAME, true);
  return new omu_PrimString(omu_CorvexName(name, static_cast<omu_CorvexNameEnum>(kind)).Name());
}

omu_Primitive* MakeLegalGuiName(omu_Arguments& args) {
  cow_String name;
  cow_String replacements("x.--..");
  args.Begin();
  args.Get(name, "name");
  args.Optional();
  args.Get(replacements, "replacements");
  args.End("makeLegalGuiName");
  // One replacement for each of the six repairs.
  omu_RangeChecker::CheckGreaterThan("len(replacements)", 6, true, replacements.Length());
  const bool repaired = omu_CorvexName::MakeLegalGuiName(name, replacements.CStr());
  auto* result = new omu_PrimTuple(2);
  result->Put(repaired);
  result->Put(name);
  return result;
}

// The range commands in the kind of their lower limit: T is int or double.
template <class T>
omu_Primitive* CheckRangeAs(omu_Arguments& args, bool withUpper) {
  cow_String name;
  T lower{};
  T value{};
  T upper{};
  bool lowerInclusive = true;
  bool upperInclusive = true;
  args.Begin();
  args.Get(name, "name");
  args.Get(lower, "lower");
  args.Get(lowerInclusive, "lowerInclusive");
  args.Get(value, "value");
  if (withUpper) {
    args.Get(upper, "upper");
    args.Get(upperInclusive, "upperInclusive");
  }
  args.End(withUpper ? "checkRange" : "checkGreaterThan");
  if (withUpper) {
    omu_RangeChecker::CheckInRange(name, lower, lowerInclusive, value, upper, upperInclusive);
  } else {
    omu_RangeChecker::CheckGreaterThan(name, lower, lowerInclusive, value);
  }
  return nullptr;
}

bool FloatingLowerLimit(const omu_Arguments& args) {
  const omu_Primitive* lower =
      args.Size() > 1 ? args.Index(1) : args.Keywords().FindKey(std::string_view("lower"));
  return lower && lower->IsType('f');
}

omu_Primitive* CheckRange(omu_Arguments& args) {
  return FloatingLowerLimit(args) ? CheckRangeAs<double>(args, true)
                                  : CheckRangeAs<int>(args, true);
}

omu_Primitive* CheckGreaterThan(omu_Arguments& args) {
  return FloatingLowerLimit(args) ? CheckRangeAs<double>(args, false)
                                  : CheckRangeAs<int>(args, false);
}

omu_Primitive* Probe(omu_Arguments& args) {
  int a = 0;
  double b = 0;
  cow_String c;
  bool flag = false;
  cow_String name;
  args.Begin();
  args.Get(a, "a");
  args.Get(b, "b");
  args.Get(c, "c");
  args.Optional();
  args.Get(flag, "flag");
  args.Get(name, "name");
  args.End("probe");
  return nullptr;
}

// Table with a row inserted after row: the mean of it and the next row.
cow_2DArray<double> WithMidpoint(const cow_2DArray<double>& table, int row) {
  const int columns = table.Columns();
  cow_2DArray<double> result(table.Rows() + 1, columns);
  std::vector<double>& cells = result.MutableCells();
  const std::vector<double>& source = table.Cells();
  const auto split = source.begin() + static_cast<std::ptrdiff_t>(row + 1) * columns;
  std::copy(source.begin(), split, cells.begin());
  std::copy(split, source.end(), cells.begin() + static_cast<std::ptrdiff_t>(row + 2) * columns);
  for (int column = 0; column < columns; ++column) {
    result.Set(row + 1, column, (table(row, column) + table(row + 1, column)) / 2);
  }
  return result;
}

// One refinement: a row in the middle of the widest gap of the key (last) column, then the
// table sorted and validated again.
void InsertMidpoint(mdl_PropertyTable& table) {
  const int key = table.Columns() - 1;
  int widest = 0;
  for (int row = 1; row + 1 < table.Rows(); ++row) {
    if (std::abs(table(row + 1, key) - table(row, key)) >
        std::abs(table(widest + 1, key) - table(widest, key))) {
      widest = row;
    }
  }
  const bool allowEmptyFirstRow = table.AllowEmptyFirstRow();
  table = mdl_PropertyTable(WithMidpoint(table.Table(), widest));
  table.SetAllowEmptyFirstRow(allowEmptyFirstRow);
  table.Sort(1);
  table.AssertValid();
}

// The long task: runs without the GIL, reports one step per row and stops between rows when
// interrupted. It refines a copy, so the material changes only when every row is in.
omu_Primitive* DensifyMaterial(omu_Arguments& args) {
  cow_String name;
  int rows = 0;
  args.Begin();
  args.Get(name, "name");
  args.Get(rows, "rows");
  args.End("densifyMaterial");
  omu_RangeChecker::CheckGreaterThan("rows", 0, true, rows);
  // Held: another thread may reset the model while this one works without the GIL.
  const std::shared_ptr<py_DemoMaterial::Record> material = py_DemoModel::Instance().Material(name);
  mdl_PropertyTable table = material->elastic;
  omu_RangeChecker::CheckGreaterThan("len(elastic)", 2, true, table.Rows());
  const std::unique_ptr<wip_WipReporter> silent = py_ReporterSlot::Ensure();
  {
    const py::gil_scoped_release unlocked;
    wip_Progress progress("densifyMaterial " + name.StdString(), rows, "rows");
    for (int row = 0; row < rows; ++row) {
      progress.CheckInterrupt();
      InsertMidpoint(table);
      progress.Advance();
    }
  }
  material->elastic = table;
  return new omu_PrimNumber(table.Rows());
}

omu_Primitive* Annotate(omu_Arguments& args) {
  cow_String key;
  omu_PrimTuple values;
  args.Begin();
  args.Get(key, "key");
  args.Get(values, "values");
  args.End("annotate");
  py_DemoModel::Instance().Annotate(key, values);
  return nullptr;
}

omu_Primitive* ResetModel(omu_Arguments& args) {
  args.Begin();
  args.End("resetModel");
  py_DemoModel::Instance().Reset();
  return nullptr;
}

// Each name of an enumeration's table as a module constant.
template <class E>
void AddConstants(py::module_& module) {
  for (const omu_PrimEnumRow* row = omu_PrimEnumTable<E, 1>::Rows(); row->name; ++row) {
    module.attr(row->name) = py::cast(omu_PrimEnumBase(cow_String(row->name)));
  }
}
}  // namespace

void py_DemoCommands::Register(py::module_& module) {
  py_Command::Add(module, "createMaterial", &CreateMaterial,
                  "createMaterial(name, elastic, keyColumns=2): a Material with its elastic table "
                  "sorted and validated");
  py_Command::Add(module, "createSection", &CreateSection,
                  "createSection(name, thickness, material=''): a Section in its first step");
  py_Command::Add(module, "validateName", &ValidateName,
                  "validateName(name, kind=0): name when it is a legal name of the kind (0-7)");
  py_Command::Add(module, "makeLegalGuiName", &MakeLegalGuiName,
                  "makeLegalGuiName(name, replacements='x.--..'): (repaired, name)");
  py_Command::Add(
      module, "checkRange", &CheckRange,
      "checkRange(name, lower, lowerInclusive, value, upper, upperInclusive): None or RangeError");
  py_Command::Add(module, "checkGreaterThan", &CheckGreaterThan,
                  "checkGreaterThan(name, lower, lowerInclusive, value): None or RangeError");
  py_Command::Add(module, "probe", &Probe,
                  "probe(a, b, c, flag=False, name=''): binds its arguments, answers None");
  py_Command::Add(module, "densifyMaterial", &DensifyMaterial,
                  "densifyMaterial(name, rows): adds rows to the material's elastic table, one "
                  "midpoint at a time, reporting progress; Ctrl-C leaves the table as it was");
  py_Command::Add(module, "annotate", &Annotate,
                  "annotate(key, values): keeps the tuple values as the model's note under key");
  py_Command::Add(module, "resetModel", &ResetModel, "resetModel(): empties the model");
  module.def(
      "modelArchive", [] { return py::bytes(py_DemoModel::Instance().Archive()); },
      "The model as the library's archive bytes.");
  AddConstants<mdl_PropagationStatusEnm>(module);
  AddConstants<mdl_PropAttributeStateEnm>(module);
}
