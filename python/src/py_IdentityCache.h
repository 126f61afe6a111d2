#pragma once
// What was made from an immutable Python object, known by the object's identity, so that
// finding it again is one load and one comparison. Each entry holds a reference to its
// object, so that the address names no other object while the entry lasts; a new entry
// takes the place of the one in its slot. Slots is a power of two (py_HomeSlot).
//
// Call with the GIL held. Forget before the interpreter finalises, while the objects can still
// be released; nothing is kept after that.
#include "py_HomeSlot.h"
#include "py_Library.h"

#include <Python.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>

template <class V, std::size_t Slots>
class py_IdentityCache {
public:
  // The value kept for object, or null.
  const V* Find(PyObject* object) const noexcept {
    const Entry& entry = m_Entries[Home(object)];
    return entry.object == object ? &entry.value : nullptr;
  }

  // Keeps value for object, which must be immutable; what its slot held is let go. An object
  // only its caller holds is not kept: it dies after the call and is never met again.
  void Keep(PyObject* object, V value) {
    if (Py_REFCNT(object) == 1 || !py_Library::InterpreterAlive()) return;
    Entry& entry = m_Entries[Home(object)];
    PyObject* const dropped = std::exchange(entry.object, Py_NewRef(object));
    entry.value = std::move(value);
    Py_XDECREF(dropped);
  }

  void Forget() noexcept {
    for (Entry& entry : m_Entries) {
      Py_CLEAR(entry.object);
      entry.value = V();
    }
  }

private:
  struct Entry {
    PyObject* object = nullptr;
    V value;
  };

  static std::size_t Home(PyObject* object) noexcept {
    return py_HomeSlot<Slots>(reinterpret_cast<std::uintptr_t>(object));
  }

  std::array<Entry, Slots> m_Entries{};
};
