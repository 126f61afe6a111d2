#include "py_Journal.h"

#include "py_Caster.h"
#include "py_JournalText.h"
#include "py_ValueConverter.h"

#include <pybind11/eval.h>

#include <utility>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
// Keyword arguments were stored in the order of the call's names, which never repeat.
const omu_Primitive* Converted(const omu_Arguments& arguments, Py_ssize_t positional,
                               Py_ssize_t index) {
  if (index < positional) return arguments.Index(static_cast<int>(index));
  return arguments.StoredValue(static_cast<int>(index - positional));
}

// name(value, ..., keyword=value, ...) for count arguments; valueAt(i) gives argument i.
template <class ValueAt>
std::string CallText(PyObject* command, PyObject* kwnames, std::uint32_t count, ValueAt&& valueAt) {
  auto text = py::str(py::handle(command).attr("__name__")).cast<std::string>();
  text += '(';
  const auto positional =
      count - static_cast<std::uint32_t>(kwnames ? PyTuple_GET_SIZE(kwnames) : 0);
  for (std::uint32_t i = 0; i < count; ++i) {
    if (i > 0) text += ", ";
    if (i >= positional) {
      text += py::str(PyTuple_GET_ITEM(kwnames, i - positional)).cast<std::string>();
      text += '=';
    }
    const py::object value = valueAt(i);
    py_JournalText::Append(text, value.ptr());
  }
  text += ')';
  return text;
}

// type(error).__name__: str(error), on one line.
std::string ErrorText(PyObject* error) {
  std::string text = Py_TYPE(error)->tp_name;
  const std::size_t dot = text.rfind('.');
  if (dot != std::string::npos) text.erase(0, dot + 1);
  text += ": ";
  for (const char c : py::str(error).cast<std::string>()) {
    text += c == '\n' ? std::string_view("\\n") : std::string_view(&c, 1);
  }
  return text;
}
}  // namespace

py_Journal& py_Journal::Instance() {
  // Never freed: it holds Python references the interpreter's teardown must not meet.
  static auto* journal = new py_Journal();
  return *journal;
}

void py_Journal::Succeeded(PyObject* command, PyObject* const* args, std::size_t nargsf,
                           PyObject* kwnames, const omu_Arguments& arguments) {
  const Py_ssize_t positional = PyVectorcall_NARGS(nargsf);
  const Py_ssize_t count = positional + (kwnames ? PyTuple_GET_SIZE(kwnames) : 0);
  std::pmr::deque<Argument>& kept = m_Entries->arguments;
  const std::size_t mark = kept.size();
  try {
    for (Py_ssize_t i = 0; i < count; ++i) {
      // A value no script can change is kept by reference, any other as the command got it.
      const omu_Primitive* converted =
          py_ValueConverter::Immutable(args[i]) ? nullptr : Converted(arguments, positional, i);
      if (converted) {
        kept.emplace_back(std::unique_ptr<omu_Primitive>(converted->Copy()));
      } else {
        kept.emplace_back(args[i]);
      }
    }
    m_Entries->calls.emplace_back(command, kwnames, static_cast<std::uint32_t>(mark),
                                  static_cast<std::uint32_t>(count));
  } catch (...) {
    while (kept.size() > mark) kept.pop_back();
    throw;
  }
}

void py_Journal::Failed(PyObject* command, PyObject* const* args, std::size_t nargsf,
                        PyObject* kwnames) noexcept {
  PyObject* type = nullptr;
  PyObject* value = nullptr;
  PyObject* traceback = nullptr;
  PyErr_Fetch(&type, &value, &traceback);
  PyErr_NormalizeException(&type, &value, &traceback);
  const Py_ssize_t count = PyVectorcall_NARGS(nargsf) + (kwnames ? PyTuple_GET_SIZE(kwnames) : 0);
  try {
    // Made now: keeping the arguments would keep whatever a failed call was given alive.
    std::string text =
        "# " + CallText(command, kwnames, static_cast<std::uint32_t>(count), [&](std::uint32_t i) {
          return py::reinterpret_borrow<py::object>(args[i]);
        });
    text += "  -> " + ErrorText(value ? value : type);
    std::vector<std::string>& comments = m_Entries->comments;
    comments.push_back(std::move(text));
    m_Entries->calls.emplace_back(nullptr, nullptr, static_cast<std::uint32_t>(comments.size() - 1),
                                  0);
  } catch (py::error_already_set&) {
    // An argument whose repr raised: the failure goes unrecorded, the script's error stands.
  } catch (const std::bad_alloc&) {
  }
  PyErr_Restore(type, value, traceback);
}

std::string py_Journal::Text(const Call& call) const {
  if (!call.command) return m_Entries->comments[call.first];
  return CallText(call.command, call.kwnames, call.count, [&](std::uint32_t i) {
    const Argument& argument = m_Entries->arguments[call.first + i];
    if (PyObject* object = argument.Object()) return py::reinterpret_borrow<py::object>(object);
    return py::reinterpret_steal<py::object>(py_ValueConverter::ToPython(argument.Snapshot()));
  });
}

std::vector<std::string> py_Journal::Lines() const {
  std::vector<std::string> lines;
  lines.reserve(m_Entries->calls.size());
  for (const Call& call : m_Entries->calls) lines.push_back(Text(call));
  return lines;
}

void py_Journal::Clear() {
  // Replaced before the old entries go: releasing a reference may run Python code that calls
  // a command.
  const std::unique_ptr<Entries> old = std::exchange(m_Entries, std::make_unique<Entries>());
}

namespace {
py::list ReadLines(const py::object& source) {
  if (py::isinstance<py::str>(source) || py::hasattr(source, "__fspath__")) {
    const py::object file =
        py::module_::import("io").attr("open")(source, "r", "encoding"_a = "utf-8");
    const py::object text = file.attr("read")();
    file.attr("close")();
    return text.attr("splitlines")();
  }
  return py::list(source);
}

py::dict ReplayNamespace() {
  const py::module_ module = py::module_::import("cvxutils");
  py::dict names = py::reinterpret_borrow<py::dict>(module.attr("__dict__")).attr("copy")();
  names["cvxutils"] = module;
  try {
    names["numpy"] = py::module_::import("numpy");
  } catch (py::error_already_set& error) {
    if (!error.matches(PyExc_ImportError)) throw;
  }
  return names;
}
}  // namespace

void py_Journal::Register(py::module_& module) {
  module.def(
      "journal",
      [] {
        py::list lines;
        for (const std::string& line : Instance().Lines()) lines.append(py::str(line));
        return lines;
      },
      "The journal: one line of Python per command run, failed ones as comments.");
  module.def(
      "clear_journal", [] { Instance().Clear(); }, "Empties the journal.");
  module.def(
      "write_journal",
      [](const py::object& path) {
        const std::vector<std::string> lines = Instance().Lines();
        std::string body;
        for (const std::string& line : lines) body += line + '\n';
        const bool arrays = body.find("numpy.array(") != std::string::npos;
        const std::string text = "import cvxutils\n" + std::string(arrays ? "import numpy\n" : "") +
                                 "from cvxutils import *\n" + body;
        const py::object file =
            py::module_::import("io").attr("open")(path, "w", "encoding"_a = "utf-8");
        file.attr("write")(text);
        file.attr("close")();
      },
      "path"_a, "Writes the journal to path as a script that replays it.");
  module.def(
      "replay",
      [](const py::object& source) {
        const py::dict names = ReplayNamespace();
        for (const py::handle line : ReadLines(source)) {
          const auto text = py::str(line).cast<std::string>();
          const std::size_t start = text.find_first_not_of(" \t");
          if (start == std::string::npos || text[start] == '#') continue;
          py::exec(py::str(text), names);
        }
      },
      "lines_or_path"_a, "Runs the lines of a journal, or of a file written by write_journal.");
}
