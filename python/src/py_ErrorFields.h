#pragma once
// The fields of a library error as Python attributes, read from the record the error writes
// of itself (DBWrite), so that every error class, the library's and any later one, shows
// the fields its own table persists with nothing listed here: "m_ArgNum" becomes arg_num,
// "m_LowerLimitAsString" lower_limit_as_string. Integer fields become int, text fields str.
// Cost: one small archive record per error raised to Python. Call with the GIL held.
#include <nex_Exception.h>
#include <pybind11/pybind11.h>

class py_ErrorFields {
public:
  // Sets each field of error as an attribute of exception.
  static void Attach(const nex_Exception& error, pybind11::handle exception);

  // "m_LowerLimitAsString" -> "lower_limit_as_string".
  static std::string AttributeName(std::string_view field);
};
