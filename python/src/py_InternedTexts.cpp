#include "py_KeywordNames.h"

#include "py_Caster.h"

#include <unordered_map>

cow_String py_KeywordNames::Text(PyObject* name) {
  // Lives as long as the process: its references are never given back.
  static auto& texts = *new std::unordered_map<PyObject*, cow_String>();
  if (!PyUnicode_CHECK_INTERNED(name)) return py_Caster<cow_String>::FromPython(name);
  const auto known = texts.find(name);
  if (known != texts.end()) return known->second;
  cow_String text = py_Caster<cow_String>::FromPython(name);
  if (texts.size() < Capacity) texts.emplace(Py_NewRef(name), text);
  return text;
}
