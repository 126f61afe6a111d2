#include <omu_PrimBool.h>

const omu_PrimEnumRow* omu_PrimEnumTable<bool, 2>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {{"ON", 1}, {"OFF", 0}, {nullptr, 0}};
  return rows;
}

const omu_PrimEnumRow* omu_PrimEnumTable<bool, 3>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {{"TRUE", 1}, {"FALSE", 0}, {nullptr, 0}};
  return rows;
}

const omu_PrimEnumRow* omu_PrimEnumTable<bool, 4>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {{"YES", 1}, {"NO", 0}, {nullptr, 0}};
  return rows;
}

const char* omu_PrimBoolClassName(int n) noexcept {
  static constexpr const char* names[] = {"omu_OnOffConst", "omu_TrueFalseConst", "omu_YesNoConst"};
  return n >= 2 && n <= 4 ? names[n - 2] : "";
}

void omu_InitializeBoolConstants(cls_ClassRegistrar& registrar) {
  omu_PrimBool<2>::InitializeMetadata(registrar);
  omu_PrimBool<3>::InitializeMetadata(registrar);
  omu_PrimBool<4>::InitializeMetadata(registrar);
}
