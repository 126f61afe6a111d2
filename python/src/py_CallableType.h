#pragma once
// The Python type of a native callable kind. Its objects start with PyObject_HEAD and then a
// vectorcallfunc member `vectorcall`, the entry every call goes through (tp_call defers to it);
// the object fields the kind names are read-only attributes the object owns and releases when
// it is freed. A type is made once per kind, before its first object, and kept for the
// process; making it raises pybind11::error_already_set if the interpreter refuses it.
#include <Python.h>

#include <cstddef>
#include <initializer_list>

class py_CallableType {
public:
  // A read-only attribute over a PyObject* field of the object, which holds a reference.
  struct Field {
    const char* name;
    std::size_t offset;
  };

  template <class Object>
  static PyTypeObject* Make(const char* name, std::initializer_list<Field> fields, reprfunc repr) {
    return Make(name, sizeof(Object), offsetof(Object, vectorcall), fields, repr);
  }

private:
  static PyTypeObject* Make(const char* name, std::size_t size, std::size_t vectorcallOffset,
                            std::initializer_list<Field> fields, reprfunc repr);
  static void Dealloc(PyObject* self);
};
