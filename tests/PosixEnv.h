#pragma once
// setenv and unsetenv where the C library has none (Windows), for the tests that change the
// environment. Windows keeps no empty variable: setting "" removes it, so tests that need a
// variable to be present give it a value.
#include <cstdlib>

#if defined(_WIN32)
inline int setenv(const char* name, const char* value, int /*overwrite*/) {
  return _putenv_s(name, value);
}
inline int unsetenv(const char* name) { return _putenv_s(name, ""); }
#endif
