// The benchmark's peer: a plain pybind11 function with the signature of cvxutils.probe, doing
// the same nothing, so that the two differ only in how the call reaches native code.
#include <pybind11/pybind11.h>

#include <string>

namespace py = pybind11;
using namespace pybind11::literals;

PYBIND11_MODULE(cvxutils_bench_peer, module) {
  module.def(
      "probe", [](int, double, const std::string&, bool, const std::string&) {}, "a"_a, "b"_a,
      "c"_a, "flag"_a = false, "name"_a = "");
}
