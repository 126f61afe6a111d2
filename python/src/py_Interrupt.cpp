#include "py_Interrupt.h"

namespace {
// The exception a signal handler raised on this thread, owned; null when none.
struct Kept {
  PyObject* type = nullptr;
  PyObject* value = nullptr;
  PyObject* traceback = nullptr;
};
thread_local Kept t_Kept;
// Threads holding one: lets every command ask Pending without a thread-local lookup. Under
// the GIL.
int g_KeptAnywhere = 0;
}  // namespace

bool py_Interrupt::Poll() {
  if (Pending()) return true;
  if (PyErr_CheckSignals() == 0) return false;
  PyErr_Fetch(&t_Kept.type, &t_Kept.value, &t_Kept.traceback);
  ++g_KeptAnywhere;
  return true;
}

bool py_Interrupt::Pending() noexcept { return g_KeptAnywhere != 0 && t_Kept.type != nullptr; }

bool py_Interrupt::Raise() {
  if (!Pending()) return false;
  PyErr_Restore(t_Kept.type, t_Kept.value, t_Kept.traceback);
  t_Kept = Kept{};
  --g_KeptAnywhere;
  return true;
}
