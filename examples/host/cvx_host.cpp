// cvx_host: Debian's Python interpreter with the cvxutils module built in, so a script imports
// it with no path set up. It takes python's own command line: a script and its arguments
// (sys.argv as python sets it), -c, -m, or nothing for the interactive prompt. It exits with
// the interpreter's status: 1 after an uncaught error, whose traceback goes to standard error.
#include <Python.h>
#include <UTI_CaeUtils.h>

#include <cstdio>

// The module's entry point, which PYBIND11_MODULE defines in python/src/py_Module.cpp.
extern "C" PyObject* PyInit_cvxutils();

namespace {
int RunInterpreter(int argc, char** argv) {
  if (PyImport_AppendInittab("cvxutils", &PyInit_cvxutils) == -1) {
    std::fprintf(stderr, "cvx_host: cannot add cvxutils to the built-in modules\n");
    return 1;
  }
  PyConfig config;
  PyConfig_InitPythonConfig(&config);
  PyStatus status = PyConfig_SetBytesArgv(&config, argc, argv);
  if (!PyStatus_Exception(status)) status = Py_InitializeFromConfig(&config);
  PyConfig_Clear(&config);
  if (PyStatus_IsExit(status)) return status.exitcode;  // --help, --version, a bad option
  if (PyStatus_Exception(status)) {
    std::fprintf(stderr, "cvx_host: %s%s%s\n", status.func ? status.func : "",
                 status.func ? ": " : "", status.err_msg);
    return 1;
  }
  return Py_RunMain();  // finalises the interpreter
}
}  // namespace

int main(int argc, char** argv) {
  // The host holds the library for the interpreter's whole life: the module's own start on
  // import and stop at the interpreter's exit only count, so the library finalises last.
  int count = 0;
  UTI_CaeUtils_initialize(count);
  const int status = RunInterpreter(argc, argv);
  UTI_CaeUtils_finalize(count);
  return status;
}
