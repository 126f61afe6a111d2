// Enumeration values named by outside text: a name is taken exactly when its table holds it,
// any other raises omu_ValueErrorException, and a taken name maps to a value that names it
// back. Names cross as C strings, so the text ends at its first NUL.
#include <mdl_PropagationStatusEnm.h>
#include <omu_BoolSelectEnum.h>
#include <omu_PrimBool.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>

namespace {
template <class E, int N>
bool TableHolds(const char* name) {
  for (const omu_PrimEnumRow* row = omu_PrimEnumTable<E, N>::Rows(); row->name; ++row) {
    if (std::strcmp(row->name, name) == 0) return true;
  }
  return false;
}

template <class E, int N>
void Check(const std::string& text) {
  const char* name = text.c_str();
  try {
    const omu_PrimEnum<E, N> value{cow_String(name)};
    if (!TableHolds<E, N>(name) || std::strcmp(value.GetString(), name) != 0) __builtin_trap();
    const E native = value;
    const omu_PrimEnum<E, N> again(native);
    if (!TableHolds<E, N>(again.GetString()) || !(again == native)) __builtin_trap();
  } catch (const omu_ValueErrorException&) {
    if (TableHolds<E, N>(name)) __builtin_trap();
  }
}
}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  Check<bool, 2>(text);
  Check<bool, 3>(text);
  Check<bool, 4>(text);
  Check<omu_BoolSelectEnum, 1>(text);
  Check<mdl_PropagationStatusEnm, 1>(text);
  return 0;
}
