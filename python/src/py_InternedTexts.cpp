#include "py_InternedTexts.h"

#include <pybind11/pybind11.h>

#include <unordered_map>

cow_String py_InternedTexts::Text(PyObject* string) {
  // Lives as long as the process: its references are never given back.
  static auto& texts = *new std::unordered_map<PyObject*, cow_String>();
  if (!PyUnicode_CHECK_INTERNED(string)) return Converted(string);
  const auto known = texts.find(string);
  if (known != texts.end()) return known->second;
  cow_String text = Converted(string);
  if (texts.size() < Capacity) texts.emplace(Py_NewRef(string), text);
  return text;
}

cow_String py_InternedTexts::Converted(PyObject* string) {
  Py_ssize_t length = 0;
  const char* text = PyUnicode_AsUTF8AndSize(string, &length);
  if (!text) throw pybind11::error_already_set();
  return cow_String(std::string_view(text, static_cast<std::size_t>(length)));
}
