#include <mdl_PropAttributeStateEnm.h>

const omu_PrimEnumRow* omu_PrimEnumTable<mdl_PropAttributeStateEnm, 1>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {
      {"UNSET", UNSET},
      {"SET", SET},
      {"UNCHANGED", UNCHANGED},
      {"FREED", FREED},
      {"NOT_APPLICABLE", NOT_APPLICABLE},
      {"INVALID", INVALID},
      {"ABS_DEFAULT", ABS_DEFAULT},
      {"COMP_DEFAULT", COMP_DEFAULT},
      {nullptr, 0},
  };
  return rows;
}
