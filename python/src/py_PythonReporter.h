#pragma once
// A reporter written in Python: each report of the native reporter interface calls the
// method of the same meaning on a Python object, in Python style names:
//
//   error(text, level)             warning(text)
//   error_list(texts, level)       warning_list(texts)        texts a list of str
//   facility_message(text, kind, a, b, arguments)   when absent, the library's routing by kind
//   verbose(text)                  milestone(text) and milestone(text, value)
//   progress(task, unit, done, total)   the four-argument Milestone: done of total units
//   landmark(text)    print(text)    display(text)    command_done()
//   interrupted() -> bool          asked by Interrupted and InterruptedThrow
//
// A method the object lacks is skipped (interrupted counts as False), so a reporter defines
// only what it shows. Every report, and every interrupt query, first runs the pending Python
// signal handlers (py_Interrupt): after Ctrl-C, Interrupted answers 1 and InterruptedThrow
// raises wip_InterruptException. An exception raised by a method goes through the native
// caller as pybind11::error_already_set and reaches the script unchanged. A null object
// gives a silent reporter that only watches for Ctrl-C.
//
// Any thread may report: each call takes the GIL for its duration, so native work may run
// with the GIL released. Holds a reference to the object; destroy it with the GIL held.
#include <pybind11/pybind11.h>
#include <wip_WipReporter.h>

class py_PythonReporter : public wip_WipReporter {
public:
  explicit py_PythonReporter(pybind11::object target) : m_Target(std::move(target)) {}

  const pybind11::object& Target() const noexcept { return m_Target; }

  void Error(const atr_String& text, wip_errorLevelEnm level) override;
  void Warning(const atr_String& text) override;
  void ErrorList(const cow_List<atr_String>& texts, wip_errorLevelEnm level) override;
  void WarningList(const cow_List<atr_String>& texts) override;
  void FacilityMessage(const atr_String& text, int kind, int a, int b,
                       omu_PrimTuple& arguments) override;
  void Verbose(const atr_String& text) override;
  void Milestone(const atr_String& text, int value) override;
  void Milestone(const atr_String& task, const atr_String& unit, int done, int total) override;
  void Milestone(const atr_String& text) override;
  void Landmark(const atr_String& text) override;
  void Print(const atr_String& text) override;
  void Display(const atr_String& text) override;
  int Interrupted() override;
  void CommandDone() override;
  void InterruptedThrow() override;

private:
  // Calls method(arguments...) on the object when it has it; answers whether it did, with the
  // result in *result when asked. Call with the GIL held.
  template <class... Arguments>
  bool Send(const char* method, pybind11::object* result, const Arguments&... arguments);
  // Takes the GIL, polls for Ctrl-C and sends the report.
  template <class... Arguments>
  void Report(const char* method, const Arguments&... arguments);

  pybind11::object m_Target;
};
