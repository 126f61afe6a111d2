#include <cls_Value.h>

const char* cls_Value::KindName(Kind kind) noexcept {
  static constexpr const char* names[] = {"nothing", "a bool",   "a character", "an int",
                                          "an unsigned int", "a double", "a text",
                                          "an enumerator",   "a list",   "an array",
                                          "an object",       "a reference", "a float",
                                          "a 64-bit int"};
  return kind < std::size(names) ? names[kind] : "an unknown value";
}
