#pragma once
// The scalar conversions, one row per bound native type that has a py_Caster, in the order
// of omu_BindingTypes. A Python value takes the first type that accepts it, tested inline in
// list order (a loop over function pointers would mispredict its calls as argument types vary);
// a primitive goes back through the first row of its type code whose binding takes it by the
// exact rule (so a UINT number is not read as an int), then through any row that takes it.
// Made once; rows are plain function pointers.
#include <Python.h>
#include <omu_Binding.h>

#include <vector>

class py_ScalarTable {
public:
  struct Row {
    char code;
    // A new reference, or null (no Python error) when the binding refuses the value.
    PyObject* (*toPython)(const omu_Primitive&, omu_BindingRuleEnum);
  };

  static const py_ScalarTable& Instance();

  // The primitive of the first type that accepts value, or null when none does.
  static omu_PrimOwner ToPrimitive(PyObject* value);
  // The Python value of a scalar primitive, or null (no Python error) when no row takes it.
  PyObject* ToPython(const omu_Primitive& value) const;

private:
  py_ScalarTable();

  std::vector<Row> m_Rows;
};
