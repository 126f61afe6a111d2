#pragma once
/// \addtogroup mdl
/// @{

/// \enum mdl_PropagationStatusEnm
/// The propagation status of a model object in one analysis step, and the three ways the
/// model classifies it. Persisted and given by scripts by name, through
/// omu_PrimEnum<mdl_PropagationStatusEnm, 1>; an object keeps one status per step in a
/// mdl_PropagationStatusList.
#include <CVX_Export.h>
#include <cow_List.h>
#include <omu_PrimEnumRow.h>

enum mdl_PropagationStatusEnm : int {
  NOT_YET_ACTIVE = 0,
  CREATED = 1,
  PROPAGATED = 2,
  MODIFIED = 3,
  DEACTIVATED = 4,
  NO_LONGER_ACTIVE = 5,
  TYPE_NOT_APPLICABLE = 6,
  INSTANCE_NOT_APPLICABLE = 7,
  BUILT_INTO_BASE_STATE = 8,
  PROPAGATED_FROM_BASE_STATE = 9,
  MODIFIED_FROM_BASE_STATE = 10,
  DEACTIVATED_FROM_BASE_STATE = 11,
  BUILT_INTO_MODES = 12,
  COMPUTED = 13,
  PROPAGATED_FROM_COMPUTED = 14,
  RESET_TO_INITIAL = 15,
  PROPAGATED_FROM_FREQUENCY = 16,
};

/// Statuses of a step in which the object takes part (computed ones do not).
CVX_EXPORT bool mdl_activePropagationStatus(mdl_PropagationStatusEnm status) noexcept;
/// Statuses of a step in which the object has been switched off.
CVX_EXPORT bool mdl_deactivatedPropagationStatus(mdl_PropagationStatusEnm status) noexcept;
/// The six statuses of an ordinary analysis step, NOT_YET_ACTIVE to NO_LONGER_ACTIVE.
CVX_EXPORT bool mdl_generalAnalysisStatus(mdl_PropagationStatusEnm status) noexcept;

/// One status per analysis step.
using mdl_PropagationStatusList = cow_List<mdl_PropagationStatusEnm>;

/// The names of mdl_PropagationStatusEnm.
template <>
struct omu_PrimEnumTable<mdl_PropagationStatusEnm, 1> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};

/// @}
