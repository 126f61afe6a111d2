#pragma once
// The library's console reporter (wip_ConsoleReporter: a progress bar on a terminal, lines
// otherwise, on the error stream) as cvxutils.ConsoleReporter, which also stops the running
// task on Ctrl-C: its interrupt queries and progress reports first run the pending Python
// signal handlers (py_Interrupt). Install it with cvxutils.install_reporter.
//
//   ConsoleReporter(style='auto', verbose=False)   style 'auto', 'plain' or 'terminal'
//   shows_bar                  read-only: True when progress is drawn as a bar
//   request_interrupt()        asks the running task to stop, as Ctrl-C does
//
// Reports may come from a thread running without the GIL; each poll takes it.
#include <pybind11/pybind11.h>
#include <wip_ConsoleReporter.h>

class py_ConsoleReporter : public wip_ConsoleReporter {
public:
  using wip_ConsoleReporter::wip_ConsoleReporter;

  void Milestone(const atr_String& task, const atr_String& unit, int done, int total) override;
  using wip_ConsoleReporter::Milestone;
  int Interrupted() override;
  void InterruptedThrow() override;

  // Adds the class to module.
  static void Register(pybind11::module_& module);

private:
  // Turns a Ctrl-C seen by Python into an interrupt request.
  void PollSignals();
};
