#include "py_ReporterSlot.h"

#include "py_ConsoleReporter.h"
#include "py_Library.h"
#include "py_PythonReporter.h"

#include <wip_WIP.h>

#include <utility>

namespace py = pybind11;

namespace {
// This thread's installed Python object, and the native reporter made for it when it is not
// a native reporter itself.
struct Slot {
  py::object target;
  std::unique_ptr<py_PythonReporter> wrapper;

  Slot() = default;
  Slot(const Slot&) = delete;
  Slot& operator=(const Slot&) = delete;
  // At thread exit: dropped under the GIL while the interpreter lives, else left alone.
  // NOLINTNEXTLINE(bugprone-exception-escape): taking the GIL fails only without an interpreter
  ~Slot() {
    if (!target) return;
    if (!py_Library::InterpreterAlive() || !Py_IsInitialized()) {
      target.release();
      static_cast<void>(wrapper.release());
      return;
    }
    py::gil_scoped_acquire gil;
    wrapper.reset();
    target = py::object();
  }
};
thread_local Slot t_Slot;

// Puts the previous reporter back on exit of a with block, or on restore().
class Installation {
public:
  Installation(py::object target, py::object previous)
      : m_Target(std::move(target)), m_Previous(std::move(previous)) {}
  py::object Enter() const { return m_Target; }
  void Restore() { py_ReporterSlot::Install(m_Previous); }
  const py::object& Previous() const { return m_Previous; }

private:
  py::object m_Target;
  py::object m_Previous;
};
}  // namespace

py::object py_ReporterSlot::Install(const py::object& target) {
  wip_WipReporter* native = nullptr;
  std::unique_ptr<py_PythonReporter> wrapper;
  if (py::isinstance<py_ConsoleReporter>(target)) {
    native = &target.cast<py_ConsoleReporter&>();
  } else if (!target.is_none()) {
    wrapper = std::make_unique<py_PythonReporter>(target);
    native = wrapper.get();
  }
  wip_WIP::Instance().SetWipReporter(native);
  py::object previous = std::exchange(t_Slot.target, target.is_none() ? py::object() : target);
  std::swap(t_Slot.wrapper, wrapper);
  return previous ? previous : py::none();
}

py::object py_ReporterSlot::Installed() { return t_Slot.target ? t_Slot.target : py::none(); }

std::unique_ptr<wip_WipReporter> py_ReporterSlot::Ensure() {
  wip_WIP& front = wip_WIP::Instance();
  if (front.GetWipReporter()) return nullptr;
  auto silent = std::make_unique<py_PythonReporter>(py::object());
  front.SetWipReporter(silent.get());
  return silent;
}

void py_ReporterSlot::Register(py::module_& module) {
  using namespace pybind11::literals;
  py_ConsoleReporter::Register(module);
  py::class_<Installation>(module, "InstalledReporter",
                           "A reporter installed for this thread; the previous one comes back "
                           "on exit of a with block or on restore().")
      .def_property_readonly("previous", &Installation::Previous)
      .def("restore", &Installation::Restore)
      .def("__enter__", &Installation::Enter)
      .def("__exit__", [](Installation& installation, const py::args&) {
        installation.Restore();
        return false;
      });
  module.def(
      "install_reporter",
      [](py::object target) {
        py::object previous = Install(target);
        return Installation(std::move(target), std::move(previous));
      },
      "reporter"_a, "Installs reporter (None: none) for this thread's native progress reports.");
  module.def("reporter", &Installed, "This thread's installed reporter, or None.");
}
