#include "py_InternedTexts.h"

#include <pybind11/pybind11.h>

#include <array>
#include <bit>
#include <cstdint>

namespace {
// Open addressing over a table twice the capacity, so that a probe stays short; a string's
// address, scrambled, is its hash. Lives as long as the process: its references are never
// given back.
struct Entry {
  PyObject* string = nullptr;
  cow_String text;
};
constexpr std::size_t kSlots = 2 * py_InternedTexts::Capacity;
static_assert(std::has_single_bit(kSlots));

std::size_t Home(PyObject* string) noexcept {
  const auto address = reinterpret_cast<std::uintptr_t>(string);
  return static_cast<std::size_t>((address * 0x9E3779B97F4A7C15ULL) >>
                                  (64 - std::countr_zero(kSlots)));
}
}  // namespace

cow_String py_InternedTexts::Text(PyObject* string) {
  static auto& table = *new std::array<Entry, kSlots>();
  static std::size_t kept = 0;
  if (!PyUnicode_CHECK_INTERNED(string)) return Converted(string);
  std::size_t at = Home(string);
  for (; table[at].string; at = (at + 1) % kSlots) {
    if (table[at].string == string) return table[at].text;
  }
  cow_String text = Converted(string);
  if (kept < Capacity) {
    table[at] = {Py_NewRef(string), text};
    ++kept;
  }
  return text;
}

cow_String py_InternedTexts::Converted(PyObject* string) {
  Py_ssize_t length = 0;
  const char* text = PyUnicode_AsUTF8AndSize(string, &length);
  if (!text) throw pybind11::error_already_set();
  return cow_String(std::string_view(text, static_cast<std::size_t>(length)));
}
