#pragma once
// The texts of the short strings scripts pass again and again (keyword names, string constants,
// the names of things), kept by content: a call then shares a text instead of converting and
// allocating it. The texts are kept for good and are permanent (cow_String::Permanent), so that
// sharing one costs no atomic operation. A string is found by str's hash of its characters,
// which the string caches, and its UTF-8 bytes. Strings longer than ShortBytes, and new strings
// once Capacity texts are kept, convert on every call, so that a script making endless distinct
// names cannot grow the table. Call with the GIL held.
#include <Python.h>
#include <cow_String.h>

#include <cstddef>
#include <string_view>

class py_KeptTexts {
public:
  static constexpr std::size_t Capacity = 1024;
  static constexpr std::size_t ShortBytes = 32;

  // The UTF-8 text of a str; raises (pybind11::error_already_set) on lone surrogates.
  static cow_String Text(PyObject* string);

private:
  // The string's hash and its UTF-8 form, read inline when the string has them (its hash once
  // computed; an ASCII string's characters).
  static Py_hash_t Hash(PyObject* string) noexcept;
  static std::string_view Utf8(PyObject* string);
};
