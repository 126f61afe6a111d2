#include "py_ColorRamp.h"

#include "py_Caster.h"

#include <g3d_Utils.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <vector>

namespace py = pybind11;
using namespace pybind11::literals;

namespace {
// No instances: the class holds the ramps as static calls.
struct Ramps {};

using Ramp = void (*)(g3d_Color*, int, bool, float);

template <Ramp ramp>
std::vector<g3d_Color> Fill(int n, bool reverse, float alpha) {
  std::vector<g3d_Color> colors(static_cast<std::size_t>(std::max(n, 0)));
  ramp(colors.data(), n, reverse, alpha);
  return colors;
}

std::vector<g3d_Color> WrapAround(int n, float alpha) {
  std::vector<g3d_Color> colors(static_cast<std::size_t>(std::max(n, 0)));
  g3d_Utils::WrapAround(colors.data(), n, alpha);
  return colors;
}

std::vector<g3d_Color> Interpolate(const py::iterable& names, int n) {
  if (PyUnicode_Check(names.ptr()))
    throw py::type_error("names must be a sequence of str, not str");
  cow_List<cow_String> texts;
  for (const py::handle name : names) {
    if (!py_Caster<cow_String>::Accepts(name.ptr())) {
      throw py::type_error("names must be a sequence of str, not of " +
                           std::string(Py_TYPE(name.ptr())->tp_name));
    }
    texts.Append(py_Caster<cow_String>::FromPython(name.ptr()));
  }
  // No names, no colours: the library leaves its output alone then.
  std::vector<g3d_Color> colors(texts.IsEmpty() ? 0 : static_cast<std::size_t>(std::max(n, 0)));
  g3d_Utils::FillInColorsAndInterpolate(texts, n, colors.data());
  return colors;
}
}  // namespace

void py_ColorRamp::Register(py::module_& module) {
  py::class_<Ramps>(module, "ColorRamp", "Colour ramps for contour legends.")
      .def_static("rainbow", &Fill<&g3d_Utils::Rainbow>, "n"_a, "reverse"_a = false,
                  "alpha"_a = 1.0f)
      .def_static("blue_to_red", &Fill<&g3d_Utils::BlueToRed>, "n"_a, "reverse"_a = false,
                  "alpha"_a = 1.0f)
      .def_static("black_to_white", &Fill<&g3d_Utils::BlackToWhite>, "n"_a, "reverse"_a = false,
                  "alpha"_a = 1.0f)
      .def_static("wrap_around", &WrapAround, "n"_a, "alpha"_a = 1.0f)
      .def_static("interpolate", &Interpolate, "names"_a, "n"_a);
}
