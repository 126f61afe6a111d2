#pragma once
// The message of the library failure a call raised, or "ok"; given a source, also checks that
// the failure names it as where it was raised. Anything else escapes to fail the test.
#include <nex_CommandException.h>
#include <nex_TextException.h>

#include <gtest/gtest.h>

#include <string>

inline std::string Message(const nex_TextException& e) { return e.Text().StdString(); }
inline std::string Message(const nex_CommandException& e) { return e.JournalMessage().StdString(); }

template <class E = nex_TextException, class Call>
std::string Raised(Call&& call, const char* source = nullptr) {
  try {
    call();
  } catch (const E& e) {
    if (source) {
      EXPECT_STREQ(e.SourcePath(), source);
    }
    return Message(e);
  }
  return "ok";
}

template <class Call>
std::string RaisedText(Call&& call) {
  return Raised(call);
}
