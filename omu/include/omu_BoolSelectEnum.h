#pragma once
/// \addtogroup omu
/// @{

/// \enum omu_BoolSelectEnum
/// Which spelling a boolean setting uses in scripts.
#include <CVX_Export.h>
#include <omu_PrimEnumRow.h>

enum omu_BoolSelectEnum : int { omu_BOOL_SELECT_ON_OFF = 0, omu_BOOL_SELECT_TRUE_FALSE = 1 };

/// The names of omu_BoolSelectEnum.
template <>
struct omu_PrimEnumTable<omu_BoolSelectEnum, 1> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};

/// @}
