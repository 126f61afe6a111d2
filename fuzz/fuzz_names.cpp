// Names of random bytes through every kind, the repair loop with replacements taken from the
// input (even ones that recreate their faults), and the quoting of dotted names.
#include <omu_CorNameErrorException.h>
#include <omu_CorvexName.h>

#include <cstddef>
#include <cstdint>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string input(reinterpret_cast<const char*>(data), size);
  for (int kind = 0; kind <= 8; ++kind) {
    const auto nameKind = static_cast<omu_CorvexNameEnum>(kind);
    const int expected = omu_CorvexName::Check(input, nameKind);
    try {
      omu_CorvexName name(cow_String(input), nameKind);
      if (expected >= 0 || name.Name() != input) __builtin_trap();
    } catch (const omu_CorNameErrorException& e) {
      if (e.Error() != expected) __builtin_trap();
    }
  }
  const std::string replacements = input.substr(0, 6);
  cow_String name(input.size() > 6 ? input.substr(6) : input);
  const cow_String before = name;
  if (omu_CorvexName::MakeLegalGuiName(name, replacements.c_str())) {
    // A repaired name passes the checks the repair loop makes.
    const std::string_view repaired = name.View();
    if (repaired.empty() || (repaired.front() >= '0' && repaired.front() <= '9')) __builtin_trap();
    if (repaired.find_first_of("\".\\") != std::string_view::npos) __builtin_trap();
  } else if (name != before) {
    __builtin_trap();
  }
  (void)omu_CorvexName::QuoteIfNeeded(cow_String(input));
  return 0;
}
