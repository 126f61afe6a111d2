#pragma once
// Which reporter the calling thread's front (wip_WIP) reports to, as a script sets it:
//
//   install_reporter(reporter)   installs reporter for this thread and answers an
//                                InstalledReporter; reporter is a cvxutils.ConsoleReporter,
//                                any object with reporter methods (py_PythonReporter), or
//                                None to install none. As a context manager it puts the
//                                previous reporter back on exit:
//                                    with cvxutils.install_reporter(MyReporter()): ...
//   reporter()                   this thread's reporter, None when none was installed here
//
// The slot keeps the installed object alive. Native long tasks need a reporter; Ensure gives
// them a silent one that still stops them on Ctrl-C when the script installed none.
// Call with the GIL held.
#include <pybind11/pybind11.h>
#include <wip_WipReporter.h>

#include <memory>

class py_ReporterSlot {
public:
  static void Register(pybind11::module_& module);
  // Installs target (None: no reporter) for this thread; answers the target it replaces.
  static pybind11::object Install(const pybind11::object& target);
  static pybind11::object Installed();
  // Null when this thread's front has a reporter; else a silent reporter, installed until it
  // is destroyed.
  static std::unique_ptr<wip_WipReporter> Ensure();
};
