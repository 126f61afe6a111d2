#pragma once
// The scalar conversions, one row per bound native type that has a py_Caster, in the order
// of omu_BindingTypes. A Python value takes the first row that accepts it; a primitive goes
// back through the first row of its type code whose binding takes it by the exact rule (so a
// UINT number is not read as an int), then through any row that takes it. Made once; rows
// are plain function pointers, so a lookup costs a few indirect calls.
#include <Python.h>
#include <omu_Binding.h>

#include <vector>

class py_ScalarTable {
public:
  struct Row {
    char code;
    bool (*accepts)(PyObject*);
    omu_PrimOwner (*toPrimitive)(PyObject*);
    // A new reference, or null (no Python error) when the binding refuses the value.
    PyObject* (*toPython)(const omu_Primitive&, omu_BindingRuleEnum);
  };

  static const py_ScalarTable& Instance();

  // The row that accepts value, or null.
  const Row* Accepting(PyObject* value) const;
  // The Python value of a scalar primitive, or null (no Python error) when no row takes it.
  PyObject* ToPython(const omu_Primitive& value) const;

private:
  py_ScalarTable();

  std::vector<Row> m_Rows;
};
