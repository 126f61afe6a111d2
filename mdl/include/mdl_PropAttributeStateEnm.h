#pragma once
/// \addtogroup mdl
/// @{

/// \enum mdl_PropAttributeStateEnm
/// The state of a propagating attribute's value in the current analysis step. Persisted and
/// given by scripts by name, through omu_PrimEnum<mdl_PropAttributeStateEnm, 1>.
#include <CVX_Export.h>
#include <omu_PrimEnumRow.h>

enum mdl_PropAttributeStateEnm : int {
  UNSET = 0,           ///< no value given; the value is held zeroed
  SET = 1,             ///< given or changed in this step
  UNCHANGED = 2,       ///< given earlier, carried into this step unchanged
  FREED = 3,           ///< removed in this step; the value is held zeroed
  NOT_APPLICABLE = 4,  ///< the last four come only from explicit assignment
  INVALID = 5,
  ABS_DEFAULT = 6,
  COMP_DEFAULT = 7,
};

/// The names of mdl_PropAttributeStateEnm.
template <>
struct omu_PrimEnumTable<mdl_PropAttributeStateEnm, 1> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};

/// @}
