#include "py_CallArguments.h"

#include "py_Caster.h"

omu_Arguments py_CallArguments::Build(PyObject* const* args, std::size_t nargsf,
                                      PyObject* kwnames) {
  const Py_ssize_t positional = PyVectorcall_NARGS(nargsf);
  omu_Arguments arguments(static_cast<int>(positional));
  for (Py_ssize_t i = 0; i < positional; ++i) {
    arguments.Put(py_ValueConverter::ToPrimitive(args[i]).release());
  }
  const Py_ssize_t keywords = kwnames ? PyTuple_GET_SIZE(kwnames) : 0;
  if (keywords > 0) arguments.ReserveKeywords(static_cast<int>(keywords));
  for (Py_ssize_t i = 0; i < keywords; ++i) {
    const cow_String keyword = py_Caster<cow_String>::FromPython(PyTuple_GET_ITEM(kwnames, i));
    omu_Primitive* value = py_ValueConverter::ToPrimitive(args[positional + i]).release();
    arguments.Put(value, keyword);
  }
  return arguments;
}
