#pragma once
// Whether a standard stream ends in a terminal, asked of the platform in one place.
#include <iosfwd>

// True when stream is std::cerr or std::cout and that stream's file is a terminal.
bool wip_IsTerminal(const std::ostream* stream) noexcept;
