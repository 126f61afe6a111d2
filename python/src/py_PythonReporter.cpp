#include "py_PythonReporter.h"

#include "py_Caster.h"
#include "py_Interrupt.h"
#include "py_ValueConverter.h"

#include <omu_PrimTuple.h>
#include <wip_InterruptException.h>

namespace py = pybind11;

namespace {
// Native report arguments as Python values.
py::object ToPython(const atr_String& text) {
  PyObject* object = py_Caster<cow_String>::ToPython(cow_String(text));
  if (!object) throw py::error_already_set();
  return py::reinterpret_steal<py::object>(object);
}

py::object ToPython(const cow_List<atr_String>& texts) {
  py::list list;
  for (const atr_String& text : texts) list.append(ToPython(text));
  return list;
}

py::object ToPython(const omu_PrimTuple& arguments) {
  return py::reinterpret_steal<py::object>(py_ValueConverter::ToPython(&arguments));
}

template <class T>
py::object ToPython(const T& value) {
  return py::int_(static_cast<long long>(value));
}
}  // namespace

template <class... Arguments>
bool py_PythonReporter::Send(const char* method, py::object* result,
                             const Arguments&... arguments) {
  if (!m_Target || !py::hasattr(m_Target, method)) return false;
  py::object answer = m_Target.attr(method)(ToPython(arguments)...);
  if (result) *result = std::move(answer);
  return true;
}

template <class... Arguments>
void py_PythonReporter::Report(const char* method, const Arguments&... arguments) {
  py::gil_scoped_acquire gil;
  py_Interrupt::Poll();
  Send(method, nullptr, arguments...);
}

void py_PythonReporter::Error(const atr_String& text, wip_errorLevelEnm level) {
  Report("error", text, level);
}

void py_PythonReporter::Warning(const atr_String& text) { Report("warning", text); }

void py_PythonReporter::ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) {
  Report("error_list", texts, level);
}

void py_PythonReporter::WarningList(const cow_List<atr_String>& texts) {
  Report("warning_list", texts);
}

void py_PythonReporter::FacilityMessage(const atr_String& text, int kind, int a, int b,
                                        omu_PrimTuple& arguments) {
  {
    py::gil_scoped_acquire gil;
    py_Interrupt::Poll();
    if (Send("facility_message", nullptr, text, kind, a, b, arguments)) return;
  }
  RouteFacilityMessage(text, kind);
}

void py_PythonReporter::Verbose(const atr_String& text) { Report("verbose", text); }

void py_PythonReporter::Milestone(const atr_String& text, int value) {
  Report("milestone", text, value);
}

void py_PythonReporter::Milestone(const atr_String& task, const atr_String& unit, int done,
                                  int total) {
  Report("progress", task, unit, done, total);
}

void py_PythonReporter::Milestone(const atr_String& text) { Report("milestone", text); }

void py_PythonReporter::Landmark(const atr_String& text) { Report("landmark", text); }

void py_PythonReporter::Print(const atr_String& text) { Report("print", text); }

void py_PythonReporter::Display(const atr_String& text) { Report("display", text); }

int py_PythonReporter::Interrupted() {
  py::gil_scoped_acquire gil;
  if (py_Interrupt::Poll()) return 1;
  py::object answer;
  if (!Send("interrupted", &answer)) return 0;
  const int truth = PyObject_IsTrue(answer.ptr());
  if (truth < 0) throw py::error_already_set();
  return truth;
}

void py_PythonReporter::CommandDone() { Report("command_done"); }

void py_PythonReporter::InterruptedThrow() {
  if (Interrupted()) NEX_THROW(wip_InterruptException(), "python/src/py_PythonReporter");
}
