#include "py_ConsoleReporter.h"

#include "py_Interrupt.h"

#include <array>
#include <string_view>

namespace py = pybind11;

void py_ConsoleReporter::PollSignals() {
  py::gil_scoped_acquire gil;
  if (py_Interrupt::Poll()) RequestInterrupt();
}

void py_ConsoleReporter::Milestone(const atr_String& task, const atr_String& unit, int done,
                                   int total) {
  PollSignals();
  wip_ConsoleReporter::Milestone(task, unit, done, total);
}

int py_ConsoleReporter::Interrupted() {
  PollSignals();
  return wip_ConsoleReporter::Interrupted();
}

void py_ConsoleReporter::InterruptedThrow() {
  PollSignals();
  wip_ConsoleReporter::InterruptedThrow();
}

void py_ConsoleReporter::Register(py::module_& module) {
  using namespace pybind11::literals;
  py::class_<py_ConsoleReporter>(module, "ConsoleReporter",
                                 "The library's console reporter: a progress bar on a terminal, "
                                 "lines otherwise, on the error stream.")
      .def(py::init([](std::string_view style, bool verbose) {
             static constexpr std::array<std::pair<std::string_view, Style>, 3> kStyles{
                 {{"auto", STYLE_AUTO}, {"plain", STYLE_PLAIN}, {"terminal", STYLE_TERMINAL}}};
             for (const auto& [name, value] : kStyles) {
               if (name != style) continue;
               auto reporter = std::make_unique<py_ConsoleReporter>(value);
               reporter->SetVerbose(verbose);
               return reporter;
             }
             throw py::value_error("style is 'auto', 'plain' or 'terminal', not '" +
                                   std::string(style) + "'");
           }),
           "style"_a = "auto", "verbose"_a = false)
      .def_property_readonly("shows_bar",
                             [](const py_ConsoleReporter& reporter) { return reporter.ShowsBar(); })
      .def(
          "request_interrupt", [](py_ConsoleReporter& reporter) { reporter.RequestInterrupt(); },
          "Asks the running task to stop, as Ctrl-C does.");
}
