#pragma once
// The journal of a session: every command a script runs through py_Command, one line of
// Python per call, in call order, so that replaying the lines runs the same commands with
// the same arguments (py_JournalText gives the argument forms). A call that raised is a
// comment with its error, "# createSection('S', -1.0)  -> RangeError: ...", and is not
// replayed. Methods and members of repository objects are not commands and are not journaled.
//
// Always on, and cheap on the call path: a call that succeeded keeps references to its command
// and its arguments, and its text is made when the journal is read; a failed call's comment
// is made when it fails, so that the journal keeps nothing a failed call was given alive. An
// argument a script may still change (anything but int, float, str, bool, None, complex and
// SymbolicConstant) is kept as a copy of the primitive it became, which costs O(1) for containers
// (copy-on-write). A NumPy array the library shares without copying is journaled as it is when the
// journal is read. The journal grows until cleared: 8 bytes an argument and 24 a call.
//
// Scripts see:
//   journal()            the lines, a list of str
//   clear_journal()
//   write_journal(path)  the lines as a runnable script (with the imports it needs)
//   replay(lines_or_path)  runs the lines (a sequence of str, or a file written by
//                        write_journal) in a namespace holding the module's names, numpy
//                        and cvxutils; comments and blank lines are skipped; a line that
//                        raises stops the replay with its error
//
// One journal per process, used with the GIL held.
#include "py_JournalArena.h"

#include <Python.h>
#include <omu_Arguments.h>
#include <pybind11/pybind11.h>

#include <cstdint>
#include <deque>
#include <memory>
#include <memory_resource>
#include <string>
#include <vector>

class py_Journal {
public:
  static py_Journal& Instance();
  static void Register(pybind11::module_& module);

  // A call of command that succeeded; arguments are its converted values.
  void Succeeded(PyObject* command, PyObject* const* args, std::size_t nargsf, PyObject* kwnames,
                 const omu_Arguments& arguments);
  // A call of command that failed, with its Python error set (and left set).
  void Failed(PyObject* command, PyObject* const* args, std::size_t nargsf,
              PyObject* kwnames) noexcept;

  std::vector<std::string> Lines() const;
  void Clear();

private:
  // An argument: a Python object that cannot change, or a copy of the primitive it became,
  // either owned (the object by a reference, released with the GIL held). One word, its low bit
  // telling which (both are aligned), since the journal's growth costs a page fault per page.
  class Argument {
  public:
    explicit Argument(PyObject* object) noexcept
        : m_Word(reinterpret_cast<std::uintptr_t>(Py_NewRef(object))) {}
    explicit Argument(std::unique_ptr<omu_Primitive> copy) noexcept
        : m_Word(reinterpret_cast<std::uintptr_t>(copy.release()) | 1) {}
    Argument(const Argument&) = delete;
    Argument& operator=(const Argument&) = delete;
    ~Argument() {
      Py_XDECREF(Object());
      delete Snapshot();
    }
    // The word is a tagged pointer: low bit clear, a Python object; set, a snapshot.
    // NOLINTBEGIN(performance-no-int-to-ptr)
    PyObject* Object() const noexcept {
      return m_Word & 1 ? nullptr : reinterpret_cast<PyObject*>(m_Word);
    }
    const omu_Primitive* Snapshot() const noexcept {
      return m_Word & 1 ? reinterpret_cast<const omu_Primitive*>(m_Word & ~std::uintptr_t(1))
                        : nullptr;
    }
    // NOLINTEND(performance-no-int-to-ptr)

  private:
    std::uintptr_t m_Word;
  };
  // A call that succeeded: command, kwnames (null when none) and count arguments from first,
  // holding a reference to each of the two. A failed one: a null command, and first is the
  // index of its comment, made when it failed.
  struct Call {
    Call(PyObject* command, PyObject* kwnames, std::uint32_t first, std::uint32_t count) noexcept
        : command(Py_XNewRef(command)), kwnames(Py_XNewRef(kwnames)), first(first), count(count) {}
    Call(const Call&) = delete;
    Call& operator=(const Call&) = delete;
    ~Call() {
      Py_XDECREF(command);
      Py_XDECREF(kwnames);
    }
    PyObject* command;
    PyObject* kwnames;
    std::uint32_t first;
    std::uint32_t count;
  };
  // What the journal holds, dropped whole by Clear. Blocks, not one array: a growing journal
  // never moves what it holds.
  struct Entries {
    py_JournalArena arena;  // first, so that it outlives the lists it holds
    std::pmr::deque<Call> calls{&arena};
    std::pmr::deque<Argument> arguments{&arena};
    std::vector<std::string> comments;
  };

  std::string Text(const Call& call) const;

  std::unique_ptr<Entries> m_Entries = std::make_unique<Entries>();
};
