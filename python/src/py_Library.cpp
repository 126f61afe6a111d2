#include "py_Library.h"

#include "py_KeptTexts.h"
#include "py_ValueConverter.h"

#include <UTI_CaeUtils.h>
#include <pybind11/pybind11.h>

#include <atomic>

namespace {
std::atomic<bool> g_Alive{false};
int g_StartCount = 0;
}  // namespace

void py_Library::Start() {
  if (g_Alive.exchange(true)) return;
  UTI_CaeUtils_initialize(g_StartCount);
  // Before the interpreter tears its objects down: script objects the library still holds
  // are let go without touching the interpreter from then on.
  pybind11::module_::import("atexit").attr("register")(pybind11::cpp_function([] {
    g_Alive = false;
    py_KeptTexts::Forget();
    py_ValueConverter::Forget();
    UTI_CaeUtils_finalize(g_StartCount);
  }));
}

bool py_Library::InterpreterAlive() noexcept { return g_Alive.load(std::memory_order_acquire); }
