#pragma once
// Repository objects as Python objects (cvxutils.RepositoryObject), each holding its own
// handle (an omu_InterfaceObj the Python object owns). Attribute reads, writes and method
// calls go through the object's member and method tables:
//
//   obj.member            the member's getter; a method name gives a bound callable
//                         (py_Method); an unknown name raises AttributeError
//                         "'Part' object has no attribute 'x'"
//   obj.member = value    the member's setter with value as its one argument; a member
//                         without a setter raises AttributeError "member is read-only"
//   del obj.member        AttributeError, as the library's DeleteMember raises it
//   dir(obj)              the members and methods of every level
//   repr(obj)             the library's text (AsRepr)
//   a == b                the library's equality (same handle, or same path where the
//                         object's operation rules say so)
//
// A stale handle (its repository object is gone) prints as "<stale handle>", and every
// other use raises AccessError "<its path> no longer exists".
#include <omu_Arguments.h>
#include <omu_InterfaceObj.h>
#include <pybind11/pybind11.h>

class py_InterfaceObject {
public:
  // Once, at import, before any conversion.
  static void Register(pybind11::module_& module);
  // Calls the method `name` of owner's object with arguments; for py_Method.
  static omu_Primitive* CallMethod(PyObject* owner, PyObject* name, omu_Arguments& arguments);

private:
  // The object of a live handle; a stale one raises AccessError.
  static omu_InterfaceObj& Live(omu_InterfaceObj& object);
  static pybind11::object GetAttribute(pybind11::object self, const std::string& name);
  static void SetAttribute(omu_InterfaceObj& object, const std::string& name,
                           pybind11::handle value);
  static void DeleteAttribute(omu_InterfaceObj& object, const std::string& name);
  static pybind11::list Dir(omu_InterfaceObj& object);
  static pybind11::object Repr(const omu_InterfaceObj& object);
};
