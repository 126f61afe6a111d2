#include "py_CallableType.h"

#include <pybind11/pybind11.h>
#include <structmember.h>

#include <vector>

namespace {
// A type and its attribute table, which the type points into for as long as it lives.
struct CallableKind {
  PyTypeObject type{};
  std::vector<PyMemberDef> members;
};
}  // namespace

PyTypeObject* py_CallableType::Make(const char* name, std::size_t size,
                                    std::size_t vectorcallOffset,
                                    std::initializer_list<Field> fields, reprfunc repr) {
  auto* kind = new CallableKind;  // kept for the process, as the interpreter keeps the type
  for (const Field& field : fields) {
    kind->members.push_back(
        {field.name, T_OBJECT, static_cast<Py_ssize_t>(field.offset), READONLY, nullptr});
  }
  kind->members.push_back({});
  PyTypeObject& type = kind->type;
  Py_SET_REFCNT(reinterpret_cast<PyObject*>(&type), 1);  // the process's, never released
  type.tp_name = name;
  type.tp_basicsize = static_cast<Py_ssize_t>(size);
  type.tp_flags = Py_TPFLAGS_DEFAULT | Py_TPFLAGS_HAVE_VECTORCALL;
  type.tp_vectorcall_offset = static_cast<Py_ssize_t>(vectorcallOffset);
  type.tp_call = &PyVectorcall_Call;
  type.tp_repr = repr;
  type.tp_dealloc = &Dealloc;
  type.tp_members = kind->members.data();
  if (PyType_Ready(&type) < 0) throw pybind11::error_already_set();
  return &type;
}

void py_CallableType::Dealloc(PyObject* self) {
  for (const PyMemberDef* member = Py_TYPE(self)->tp_members; member->name; ++member) {
    Py_XDECREF(*reinterpret_cast<PyObject**>(reinterpret_cast<char*>(self) + member->offset));
  }
  PyObject_Free(self);
}
