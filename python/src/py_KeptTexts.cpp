#include "py_KeptTexts.h"

#include "py_HomeSlot.h"
#include "py_IdentityCache.h"

#include <pybind11/pybind11.h>

#include <array>

namespace {
// Open addressing over a table twice the capacity, so that a probe stays short; an empty text
// marks a free slot. Lives as long as the process.
struct Entry {
  Py_hash_t hash = 0;
  cow_String text;
};
constexpr std::size_t kSlots = 2 * py_KeptTexts::Capacity;

py_IdentityCache<cow_String, py_KeptTexts::Seen>& Known() {
  static auto& known = *new py_IdentityCache<cow_String, py_KeptTexts::Seen>();
  return known;
}
}  // namespace

cow_String py_KeptTexts::Text(PyObject* string) {
  if (const cow_String* known = Known().Find(string)) return *known;
  const std::string_view text = Utf8(string);
  if (text.empty() || text.size() > ShortBytes) return {text};
  cow_String kept = KeptText(string, text);
  if (kept.IsEmpty()) return {text};
  // A subclass instance is not held: its lifetime is its script's.
  if (PyUnicode_CheckExact(string)) Known().Keep(string, kept);
  return kept;
}

void py_KeptTexts::Forget() noexcept { Known().Forget(); }

cow_String py_KeptTexts::KeptText(PyObject* string, std::string_view text) {
  static auto& table = *new std::array<Entry, kSlots>();
  static std::size_t kept = 0;
  const Py_hash_t hash = Hash(string);
  std::size_t at = py_HomeSlot<kSlots>(static_cast<std::uint64_t>(hash));
  for (; !table[at].text.IsEmpty(); at = (at + 1) % kSlots) {
    if (table[at].hash == hash && table[at].text.View() == text) return table[at].text;
  }
  if (kept == Capacity) return {};
  table[at] = {hash, cow_String::Permanent(text)};
  ++kept;
  return table[at].text;
}

Py_hash_t py_KeptTexts::Hash(PyObject* string) noexcept {
  // str's own hash of the characters, which cannot fail, even for a subclass whose __hash__
  // is other code.
  const Py_hash_t cached = reinterpret_cast<PyASCIIObject*>(string)->hash;
  return cached != -1 ? cached : PyUnicode_Type.tp_hash(string);
}

std::string_view py_KeptTexts::Utf8(PyObject* string) {
  if (PyUnicode_IS_COMPACT_ASCII(string)) {
    return {static_cast<const char*>(PyUnicode_DATA(string)),
            static_cast<std::size_t>(PyUnicode_GET_LENGTH(string))};
  }
  Py_ssize_t length = 0;
  const char* text = PyUnicode_AsUTF8AndSize(string, &length);
  if (!text) throw pybind11::error_already_set();
  return {text, static_cast<std::size_t>(length)};
}
