#pragma once
// The text of the library failure a call raised, or "ok". Anything else escapes to fail the test.
#include <nex_TextException.h>

#include <string>

template <class Call>
std::string RaisedText(Call&& call) {
  try {
    call();
  } catch (const nex_TextException& e) {
    return e.Text().StdString();
  }
  return "ok";
}
