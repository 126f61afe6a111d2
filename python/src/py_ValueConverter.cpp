#include "py_ValueConverter.h"

#include "py_ArrayConverter.h"
#include "py_Caster.h"
#include "py_IdentityCache.h"
#include "py_ScalarTable.h"
#include "py_ScriptObject.h"

#include <omu_InterfaceObj.h>
#include <omu_PrimArray.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimList.h>
#include <omu_PyObjectWrapper.h>

#include <algorithm>
#include <climits>
#include <vector>

namespace py = pybind11;

namespace {
template <class... Values>
[[noreturn]] void Raise(PyObject* type, const char* format, Values... values) {
  PyErr_Format(type, format, values...);
  throw py::error_already_set();
}

// Marks a container as being converted for as long as it is, so that one that holds itself
// is refused instead of recursing without end; deep nesting meets Python's recursion limit.
class OpenContainer {
public:
  explicit OpenContainer(PyObject* container) {
    if (std::find(s_Open.begin(), s_Open.end(), container) != s_Open.end()) {
      Raise(PyExc_ValueError, "a %.200s that holds itself cannot be carried",
            Py_TYPE(container)->tp_name);
    }
    if (Py_EnterRecursiveCall(" while converting a value for the library")) {
      throw py::error_already_set();
    }
    s_Open.push_back(container);
  }
  ~OpenContainer() {
    s_Open.pop_back();
    Py_LeaveRecursiveCall();
  }
  OpenContainer(const OpenContainer&) = delete;
  OpenContainer& operator=(const OpenContainer&) = delete;

private:
  // Per thread: each thread converts under the GIL, but may be switched out mid-conversion.
  static thread_local std::vector<PyObject*> s_Open;
};
thread_local std::vector<PyObject*> OpenContainer::s_Open;

int CheckedSize(Py_ssize_t size) {
  if (size > INT_MAX) {
    Raise(PyExc_OverflowError, "%S items are more than the library holds", py::int_(size).ptr());
  }
  return static_cast<int>(size);
}

template <class Sequence>
omu_PrimOwner ToSequence(PyObject* value) {
  OpenContainer open(value);
  const Py_ssize_t size = PySequence_Fast_GET_SIZE(value);
  auto result = std::make_unique<Sequence>(CheckedSize(size));
  for (Py_ssize_t i = 0; i < size; ++i) {
    // Converting an item may run Python code that changes a list.
    if (PySequence_Fast_GET_SIZE(value) != size) {
      Raise(PyExc_RuntimeError, "%.200s changed size while it was converted",
            Py_TYPE(value)->tp_name);
    }
    const auto item = py::reinterpret_borrow<py::object>(PySequence_Fast_GET_ITEM(value, i));
    result->Put(py_ValueConverter::ToPrimitive(item.ptr()).release());
  }
  return result;
}

// A key of an integer-keyed dictionary, which must fit int.
int IntegerKey(PyObject* key) {
  if (!py_Caster<int>::Accepts(key)) {
    Raise(PyExc_OverflowError, "dictionary key %R does not fit a 32-bit signed integer", key);
  }
  return py_Caster<int>::FromPython(key);
}

template <class K>
omu_PrimOwner ToDictionary(const py::list& items) {
  auto result = std::make_unique<omu_PrimDictionary<K>>();
  for (const py::handle item : items) {
    PyObject* key = PyTuple_GET_ITEM(item.ptr(), 0);
    K nativeKey;
    if constexpr (std::is_same_v<K, int>) {
      nativeKey = IntegerKey(key);
    } else {
      nativeKey = py_Caster<cow_String>::FromPython(key);
    }
    result->Put(py_ValueConverter::ToPrimitive(PyTuple_GET_ITEM(item.ptr(), 1)).release(),
                nativeKey);
  }
  return result;
}

// str keys (or none) give a text-keyed dictionary, int keys an integer-keyed one.
omu_PrimOwner ToDictionary(PyObject* value) {
  OpenContainer open(value);
  // A snapshot: converting a value may run Python code that changes the dictionary.
  const auto items = py::reinterpret_steal<py::list>(PyDict_Items(value));
  if (!items) throw py::error_already_set();
  bool textKeys = false;
  bool integerKeys = false;
  for (const py::handle item : items) {
    PyObject* key = PyTuple_GET_ITEM(item.ptr(), 0);
    textKeys |= PyUnicode_Check(key);
    integerKeys |= PyLong_Check(key) && !PyBool_Check(key);
    if (textKeys == integerKeys) {
      Raise(PyExc_TypeError,
            "a dictionary crosses with all keys str or all keys int; key %R does not fit", key);
    }
  }
  return integerKeys ? ToDictionary<int>(items) : ToDictionary<cow_String>(items);
}

template <class K>
PyObject* DictionaryToPython(const omu_PrimDictionary<K>& dictionary) {
  py::dict result;
  for (const auto& [key, value] : dictionary.GetEntries()) {
    const auto item =
        py::reinterpret_steal<py::object>(py_ValueConverter::ToPython(value.ConstGet()));
    if constexpr (std::is_same_v<K, int>) {
      result[py::int_(key)] = item;
    } else {
      result[py::reinterpret_steal<py::object>(py_Caster<cow_String>::ToPython(key))] = item;
    }
  }
  return result.release().ptr();
}

PyObject* DictionaryToPython(const omu_Primitive& value) {
  if (const auto* text = dynamic_cast<const omu_PrimDictionary<cow_String>*>(&value)) {
    return DictionaryToPython(*text);
  }
  return DictionaryToPython(dynamic_cast<const omu_PrimDictionary<int>&>(value));
}

PyObject* SequenceToPython(const omu_PrimSequence& sequence) {
  const bool list = dynamic_cast<const omu_PrimList*>(&sequence) != nullptr;
  const Py_ssize_t size = sequence.Size();
  auto result = py::reinterpret_steal<py::object>(list ? PyList_New(size) : PyTuple_New(size));
  if (!result) throw py::error_already_set();
  for (Py_ssize_t i = 0; i < size; ++i) {
    PyObject* item = py_ValueConverter::ToPython(sequence.Index(static_cast<int>(i)));
    if (list) {
      PyList_SET_ITEM(result.ptr(), i, item);
    } else {
      PyTuple_SET_ITEM(result.ptr(), i, item);
    }
  }
  return result.release().ptr();
}

PyObject* Checked(PyObject* result) {
  if (!result) throw py::error_already_set();
  return result;
}
// The primitives of the immutable objects converted lately: a script passes the same
// constants and names call after call.
constexpr std::size_t kKeptPrimitives = 256;
py_IdentityCache<omu_PrimHandle, kKeptPrimitives>& KeptPrimitives() {
  static auto& kept = *new py_IdentityCache<omu_PrimHandle, kKeptPrimitives>();
  return kept;
}
}  // namespace

omu_PrimHandle py_ValueConverter::ToHandle(PyObject* value) {
  if (const omu_PrimHandle* kept = KeptPrimitives().Find(value)) return *kept;
  omu_PrimHandle made(ToPrimitive(value));
  if (Immutable(value)) KeptPrimitives().Keep(value, made);
  return made;
}

bool py_ValueConverter::Immutable(PyObject* value) {
  const PyTypeObject* type = Py_TYPE(value);
  return type == &PyLong_Type || type == &PyFloat_Type || type == &PyUnicode_Type ||
         type == &PyBool_Type || value == Py_None || type == &PyComplex_Type ||
         py::isinstance<omu_PrimEnumBase>(value);
}

void py_ValueConverter::Forget() noexcept { KeptPrimitives().Forget(); }

omu_PrimOwner py_ValueConverter::ToPrimitive(PyObject* value) {
  if (omu_PrimOwner scalar = py_ScalarTable::ToPrimitive(value)) return scalar;
  if (PyLong_Check(value)) {
    Raise(PyExc_OverflowError, "int %R does not fit a 32-bit signed or unsigned integer", value);
  }
  if (PyTuple_Check(value)) return ToSequence<omu_PrimTuple>(value);
  if (PyList_Check(value)) return ToSequence<omu_PrimList>(value);
  if (PyDict_Check(value)) return ToDictionary(value);
  if (py::isinstance<omu_InterfaceObj>(value)) {
    return omu_PrimOwner(py::handle(value).cast<const omu_InterfaceObj&>().Copy());
  }
  if (py_ArrayConverter::IsArray(value)) return py_ArrayConverter::ToPrimitive(value);
  if (PyIndex_Check(value)) {
    // An integer of another kind (a NumPy integer): its __index__ may raise.
    const auto index = py::reinterpret_steal<py::object>(PyNumber_Index(value));
    if (!index) throw py::error_already_set();
    return ToPrimitive(index.ptr());
  }
  return std::make_unique<omu_PyObjectWrapper>(py_ScriptObject::Hold(value));
}

PyObject* py_ValueConverter::ToPython(const omu_Primitive* value) {
  if (!value) return Py_NewRef(Py_None);
  switch (value->TypeCode()) {
    case 'W': {
      PyObject* object =
          py_ScriptObject::Object(static_cast<const omu_PyObjectWrapper&>(*value).Object());
      return Py_NewRef(object ? object : Py_None);
    }
    case '(':
      return SequenceToPython(static_cast<const omu_PrimSequence&>(*value));
    case '{':
      return DictionaryToPython(*value);
    case 'o':
      return py_ArrayConverter::ToPython(static_cast<const omu_PrimArray&>(*value));
    case 'r':
      return py::cast(
                 std::unique_ptr<omu_InterfaceObj>(static_cast<omu_InterfaceObj*>(value->Copy())))
          .release()
          .ptr();
    default:
      break;
  }
  if (PyObject* scalar = py_ScalarTable::Instance().ToPython(*value)) return scalar;
  if (PyErr_Occurred()) throw py::error_already_set();
  return Checked(py_Caster<cow_String>::ToPython(value->AsString(0)));
}
