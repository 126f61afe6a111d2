#pragma once
// Ctrl-C while native code runs. CPython's own SIGINT handler only sets a flag; the reporting
// hooks (py_PythonReporter, py_ConsoleReporter) call Poll, which runs the pending Python
// signal handlers. The exception a handler raises (KeyboardInterrupt for SIGINT) is kept for
// the calling thread and the running task is told it was interrupted, so it unwinds through
// the library's interrupt path (wip_InterruptException). When the command returns, the
// command entry (py_Command) raises the kept exception in place of whatever the command
// answered, so the script sees the KeyboardInterrupt its handler raised; one kept outside any
// command (a report from a method's work) is raised by the next command before it runs.
//
// Signal handlers run only on the main thread: elsewhere Poll never reports an interrupt.
// Call with the GIL held.
#include <Python.h>

class py_Interrupt {
public:
  // True when a signal handler has raised (now or earlier in this command).
  static bool Poll();
  static bool Pending() noexcept;
  // Sets the kept exception as the Python error, replacing any set, and forgets it; answers
  // false, doing nothing, when none is kept.
  static bool Raise();
};
