#pragma once
// The texts of the short strings scripts pass again and again (keyword names, string constants,
// the names of things), kept by content: a call then shares a text instead of converting and
// allocating it. The texts are kept for good and are permanent (cow_String::Permanent), so that
// sharing one costs no atomic operation. A string is found by str's hash of its characters,
// which the string caches, and its UTF-8 bytes. Strings longer than ShortBytes, and new strings
// once Capacity texts are kept, convert on every call, so that a script making endless distinct
// names cannot grow the table. In front of that table, up to Seen strings met lately are known
// by identity (py_IdentityCache), so that a script's constants and keyword names skip the hash
// and the comparison. Call with the GIL held.
#include <Python.h>
#include <cow_String.h>

#include <cstddef>
#include <string_view>

class py_KeptTexts {
public:
  static constexpr std::size_t Capacity = 1024;
  static constexpr std::size_t ShortBytes = 32;
  static constexpr std::size_t Seen = 256;

  // The UTF-8 text of a str; raises (pybind11::error_already_set) on lone surrogates.
  static cow_String Text(PyObject* string);
  // Drops the strings known by identity, while they can still be released; called as the
  // interpreter exits, after which none is held again.
  static void Forget() noexcept;

private:
  // The kept text of a string, by content; empty when it is not kept.
  static cow_String KeptText(PyObject* string, std::string_view text);
  // The string's hash and its UTF-8 form, read inline when the string has them (its hash once
  // computed; an ASCII string's characters).
  static Py_hash_t Hash(PyObject* string) noexcept;
  static std::string_view Utf8(PyObject* string);
};
