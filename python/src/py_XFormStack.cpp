#include "py_XFormStack.h"

#include <g3d_XFormStack.h>
#include <omu_RangeChecker.h>

#include <string>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
g3d_XFormStack Made(int capacity) {
  omu_RangeChecker::CheckGreaterThan("capacity", 1, true, capacity);
  return g3d_XFormStack(capacity);
}

void Push(g3d_XFormStack& stack, const g3d_XForm& form) {
  if (stack.Depth() == stack.Capacity() - 1) {
    throw py::index_error("push onto a full XFormStack of " + std::to_string(stack.Capacity()) +
                          " entries");
  }
  stack.Push(form);
}

std::string Repr(const g3d_XFormStack& stack) {
  return "XFormStack(depth=" + std::to_string(stack.Depth()) +
         ", capacity=" + std::to_string(stack.Capacity()) + ")";
}
}  // namespace

void py_XFormStack::Register(py::module_& module) {
  py::class_<g3d_XFormStack>(module, "XFormStack",
                             "A fixed-capacity stack of transforms, each push post-multiplying "
                             "the top.")
      .def(py::init(&Made), "capacity"_a)
      .def("push", &Push, "form"_a, "The new top is top @ form.")
      .def("pop", &g3d_XFormStack::Pop, "Drops the top entry; the base entry stays.")
      .def_property_readonly("top", [](const g3d_XFormStack& stack) { return stack.Top(); })
      .def("reset", &g3d_XFormStack::Reset, "form"_a = g3d_XForm(), "Back to one entry, form.")
      .def_property_readonly("depth", &g3d_XFormStack::Depth)
      .def_property_readonly("capacity", &g3d_XFormStack::Capacity)
      .def("__repr__", &Repr);
}
