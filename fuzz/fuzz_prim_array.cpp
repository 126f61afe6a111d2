// Nested sequences spelled by the input bytes, turned into a numeric array: refusals are
// nex_TextException only; what is accepted prints, indexes and slices.
//   '(' opens a tuple, ')' closes it, 'i'/'f'/'d'/'u' add an INT/FLOAT/DOUBLE/UINT number
//   made from the next byte, any other byte adds a string.
#include "../tests/CapturedErrors.h"

#include <nex_Exception.h>
#include <omu_PrimArray.h>
#include <omu_PrimString.h>
#include <omu_PrimTuple.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <vector>

namespace {
std::unique_ptr<omu_PrimTuple> Parse(const std::uint8_t* data, std::size_t size, std::size_t& at,
                                     int depth) {
  std::vector<std::unique_ptr<omu_Primitive>> items;
  while (at < size && data[at] != ')') {
    const std::uint8_t code = data[at++];
    if (code == '(') {  // the bytes after '(' belong to the nested tuple
      if (depth < 40) items.push_back(Parse(data, size, at, depth + 1));
      continue;
    }
    const double next = at < size ? static_cast<double>(data[at++]) - 100.0 : 0.0;
    switch (code) {
      case 'i':
        items.push_back(std::make_unique<omu_PrimNumber>(static_cast<int>(next)));
        break;
      case 'f':
        items.push_back(std::make_unique<omu_PrimNumber>(static_cast<float>(next) / 3));
        break;
      case 'd':
        items.push_back(std::make_unique<omu_PrimNumber>(next / 7));
        break;
      case 'u':
        items.push_back(
            std::make_unique<omu_PrimNumber>(static_cast<unsigned int>(next + 100) * 40000000u));
        break;
      default:
        items.push_back(std::make_unique<omu_PrimString>(cow_String("x")));
        break;
    }
  }
  if (at < size) ++at;  // the closing ')'
  auto tuple = std::make_unique<omu_PrimTuple>(static_cast<int>(items.size()));
  for (auto& item : items) tuple->Put(item.release());
  return tuple;
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const CapturedErrors complaints;  // the library prints what it refuses
  std::size_t at = 0;
  const std::unique_ptr<omu_PrimTuple> input = Parse(data, size, at, 0);
  try {
    const omu_PrimArray array(*input);
    (void)array.AsString(0);
    for (int i = 0; i < array.Length() && i < 8; ++i) delete array.Index(i);
    delete array.Slice(-2, 100);
    delete array.Repeat(2);
    (void)(array == array);
  } catch (const nex_Exception&) {
  }
  return 0;
}
