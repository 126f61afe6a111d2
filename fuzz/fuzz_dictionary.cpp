// Dictionaries driven by outside bytes: a sequence of puts, removes and typed reads on text
// and integer keys, checked against std::map. Typed reads answer 1 with the stored value for
// the kind that was put and 0 for another kind; keys iterate in order; a copy taken along
// the way keeps its entries however the original changes.
#include "FuzzInput.h"

#include <omu_PrimDictionary.h>

#include <cstddef>
#include <cstdint>
#include <map>
#include <variant>

namespace {
using Model = std::variant<int, cow_String>;

template <class K>
void CheckRead(const omu_PrimDictionary<K>& dict, const K& key, const Model* expected) {
  int number = -1;
  cow_String text("untouched");
  const int gotNumber = dict.Get(number, key);
  const int gotText = dict.Get(text, key);
  const int* wantNumber = expected ? std::get_if<int>(expected) : nullptr;
  const cow_String* wantText = expected ? std::get_if<cow_String>(expected) : nullptr;
  if (gotNumber != (wantNumber ? 1 : 0) || (wantNumber && number != *wantNumber)) __builtin_trap();
  if (gotText != (wantText ? 1 : 0) || (wantText && text != *wantText)) __builtin_trap();
  if (!wantNumber && number != -1) __builtin_trap();
}

template <class K, class MakeKey>
void Run(FuzzInput& bytes, MakeKey makeKey) {
  omu_PrimDictionary<K> dict;
  std::map<K, Model> model;
  omu_PrimDictionary<K> copy;
  std::map<K, Model> copyModel;
  while (!bytes.Empty()) {
    const std::uint8_t op = bytes.Byte();
    const K key = makeKey(bytes);
    const auto at = model.find(key);
    switch (op % 5) {
      case 0: {
        const int v = int(bytes.Byte()) - 128;
        dict.Put(v, key);
        model[key] = v;
        break;
      }
      case 1: {
        const cow_String v(bytes.Text());
        dict.Put(v, key);
        model[key] = v;
        break;
      }
      case 2:
        if (dict.Remove(key) != (at != model.end())) __builtin_trap();
        model.erase(key);
        break;
      case 3:
        copy = dict;
        copyModel = model;
        break;
      default:
        CheckRead(dict, key, at == model.end() ? nullptr : &at->second);
    }
    if (dict.Length() != int(model.size()) || dict.Contains(key) != model.contains(key))
      __builtin_trap();
  }
  auto expected = model.begin();
  for (const auto& entry : dict.GetEntries()) {
    if (expected == model.end() || !(entry.first == expected->first)) __builtin_trap();
    ++expected;
  }
  for (const auto& [key, value] : copyModel) CheckRead(copy, key, &value);
  if (copy.Length() != int(copyModel.size())) __builtin_trap();
  (void)dict.AsString(0);
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  FuzzInput bytes(data, size);
  if (bytes.Byte() % 2) {
    Run<int>(bytes, [](FuzzInput& b) { return int(b.Byte() % 16) - 8; });
  } else {
    Run<cow_String>(bytes, [](FuzzInput& b) { return cow_String(b.Text()); });
  }
  return 0;
}
