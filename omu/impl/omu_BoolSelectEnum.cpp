#include <omu_BoolSelectEnum.h>

const omu_PrimEnumRow* omu_PrimEnumTable<omu_BoolSelectEnum, 1>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {
      {"ON_OFF", omu_BOOL_SELECT_ON_OFF}, {"TRUE_FALSE", omu_BOOL_SELECT_TRUE_FALSE}, {nullptr, 0}};
  return rows;
}
