#include "py_ScalarTable.h"

#include "py_Caster.h"

#include <omu_BindingTypes.h>

namespace {
template <class T>
concept IsRow = py_Castable<T> && omu_Puttable<T> && omu_Gettable<T>;

template <class T>
py_ScalarTable::Row RowOf() {
  return {
      omu_Binding<T>::code, [](const omu_Primitive& value, omu_BindingRuleEnum rule) -> PyObject* {
        T out{};
        return omu_Binding<T>::Convert(value, out, rule) ? py_Caster<T>::ToPython(out) : nullptr;
      }};
}
}  // namespace

py_ScalarTable::py_ScalarTable() {
  omu_BindingTypes::ForEach([this](auto type) {
    using T = typename decltype(type)::type;
    if constexpr (IsRow<T>) m_Rows.push_back(RowOf<T>());
  });
}

const py_ScalarTable& py_ScalarTable::Instance() {
  static const py_ScalarTable table;
  return table;
}

omu_PrimOwner py_ScalarTable::ToPrimitive(PyObject* value) {
  omu_PrimOwner result;
  omu_BindingTypes::AnyOf([&](auto type) {
    using T = typename decltype(type)::type;
    if constexpr (IsRow<T>) {
      if (!py_Caster<T>::Accepts(value)) return false;
      result = omu_PrimMake(T(py_Caster<T>::FromPython(value)));
      return true;
    }
    return false;
  });
  return result;
}

PyObject* py_ScalarTable::ToPython(const omu_Primitive& value) const {
  for (const Row& row : m_Rows) {
    if (row.code != value.TypeCode()) continue;
    if (PyObject* result = row.toPython(value, omu_BINDING_EXACT)) return result;
  }
  // A kind no row is made for, such as a translated string, read as the first row takes it.
  for (const Row& row : m_Rows) {
    if (PyObject* result = row.toPython(value, omu_BINDING_CONVERTING)) return result;
  }
  return nullptr;
}
