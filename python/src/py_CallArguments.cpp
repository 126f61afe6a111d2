#include "py_CallArguments.h"

#include "py_Caster.h"

std::vector<std::unique_ptr<omu_Arguments>>& py_CallArguments::Spares() {
  // One pool for all threads, used with the GIL held: a thread-local one cost two lookups a call.
  static std::vector<std::unique_ptr<omu_Arguments>> spares;
  return spares;
}

py_CallArguments::Lease::Lease(PyObject* const* args, std::size_t nargsf, PyObject* kwnames) {
  auto& spares = Spares();
  if (spares.empty()) {
    m_Arguments = std::make_unique<omu_Arguments>();
  } else {
    m_Arguments = std::move(spares.back());
    spares.pop_back();
  }
  // A list that fails to fill is not given back: it dies with its values.
  Fill(args, nargsf, kwnames);
}

py_CallArguments::Lease::~Lease() {
  // Released here, with the GIL held, as a list destroyed here would release them.
  m_Arguments->Reset(0);
  auto& spares = Spares();
  if (spares.size() < Spare) spares.push_back(std::move(m_Arguments));
}

void py_CallArguments::Lease::Fill(PyObject* const* args, std::size_t nargsf, PyObject* kwnames) {
  const Py_ssize_t positional = PyVectorcall_NARGS(nargsf);
  omu_Arguments& arguments = *m_Arguments;
  arguments.Reset(static_cast<int>(positional));
  for (Py_ssize_t i = 0; i < positional; ++i) {
    arguments.Put(py_ValueConverter::ToHandle(args[i]));
  }
  const Py_ssize_t keywords = kwnames ? PyTuple_GET_SIZE(kwnames) : 0;
  if (keywords > 0) arguments.ReserveKeywords(static_cast<int>(keywords));
  for (Py_ssize_t i = 0; i < keywords; ++i) {
    const cow_String keyword = py_Caster<cow_String>::FromPython(PyTuple_GET_ITEM(kwnames, i));
    arguments.Put(py_ValueConverter::ToHandle(args[positional + i]), keyword);
  }
}
