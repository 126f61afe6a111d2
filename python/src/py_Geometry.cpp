#include "py_Geometry.h"

#include "py_Point.h"
#include "py_Vector.h"
#include "py_XForm.h"
#include "py_XFormStack.h"

void py_Geometry::Register(pybind11::module_& module) {
  // Each class after those its signatures name.
  py_Vector::Register(module);
  py_Point::Register(module);
  py_XForm::Register(module);
  py_XFormStack::Register(module);
}
