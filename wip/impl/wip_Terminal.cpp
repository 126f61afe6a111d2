#include "wip_Terminal.h"

#include <cstdio>
#include <iostream>

#if defined(_WIN32)
#include <io.h>
namespace {
bool IsTerminalFile(std::FILE* file) noexcept { return _isatty(_fileno(file)) != 0; }
}  // namespace
#else
#include <unistd.h>
namespace {
bool IsTerminalFile(std::FILE* file) noexcept { return isatty(fileno(file)) != 0; }
}  // namespace
#endif

bool wip_IsTerminal(const std::ostream* stream) noexcept {
  if (stream == &std::cerr) return IsTerminalFile(stderr);
  if (stream == &std::cout) return IsTerminalFile(stdout);
  return false;
}
