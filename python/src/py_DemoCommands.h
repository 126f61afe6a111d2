#pragma once
// The native commands of the demonstration model, registered in the module (they and the
// classes they need live here, not in the library). Each binds its arguments with the
// library's binder, so a wrong call gets the library's messages:
//
//   createMaterial(name, elastic, keyColumns=2)     a Material (py_DemoMaterial) whose
//       elastic table is sorted by its last keyColumns columns and validated; name is a
//       general name (CorvexNameError otherwise)
//   createSection(name, thickness, material='')     a Section (py_DemoSection) in its first
//       step (CREATED); thickness > 0 (RangeError)
//   validateName(name, kind=0)                      name when it is a legal name of kind 0-7
//   makeLegalGuiName(name, replacements='x.--..')   (repaired, name) as the library repairs it
//   checkRange(name, lower, lowerInclusive, value, upper, upperInclusive)
//   checkGreaterThan(name, lower, lowerInclusive, value)
//                                                   None, or RangeError; integer checks when
//                                                   the lower limit is an int, else floating
//   densifyMaterial(name, rows)                    the long task: adds rows to the elastic
//                                                   table of the model's material name, each
//                                                   the midpoint of the widest gap of the
//                                                   last column, re-sorting and validating
//                                                   after each; reports progress per row
//                                                   without holding the GIL, and on Ctrl-C
//                                                   raises KeyboardInterrupt with the table as
//                                                   it was; answers the row count
//   annotate(key, values)                           keeps the tuple values (of any values
//                                                   that persist) as the model's note
//   resetModel()                                    empties the model (py_DemoModel)
//   modelArchive()                                  the model's archive, bytes (a function,
//                                                   not a command: saving is not journaled)
//   probe(a, b, c, flag=False, name='')             binds an int, a float, a str, a bool and
//                                                   a str and answers None: the call path alone
//
// createMaterial and createSection add what they make to the model, replacing one of the same
// name. The propagation statuses and attribute states are module constants (cvxutils.CREATED,
// cvxutils.SET, ...), made from the enumerations' own tables.
#include <pybind11/pybind11.h>

class py_DemoCommands {
public:
  static void Register(pybind11::module_& module);
};
