#include <mdl_PropagationStatusEnm.h>

template class cow_List<mdl_PropagationStatusEnm>;

bool mdl_activePropagationStatus(mdl_PropagationStatusEnm status) noexcept {
  switch (status) {
    case CREATED:
    case PROPAGATED:
    case MODIFIED:
    case BUILT_INTO_BASE_STATE:
    case PROPAGATED_FROM_BASE_STATE:
    case MODIFIED_FROM_BASE_STATE:
    case BUILT_INTO_MODES:
    case PROPAGATED_FROM_FREQUENCY:
      return true;
    default:
      return false;
  }
}

bool mdl_deactivatedPropagationStatus(mdl_PropagationStatusEnm status) noexcept {
  return status == DEACTIVATED || status == NO_LONGER_ACTIVE ||
         status == DEACTIVATED_FROM_BASE_STATE;
}

bool mdl_generalAnalysisStatus(mdl_PropagationStatusEnm status) noexcept {
  return status >= NOT_YET_ACTIVE && status <= NO_LONGER_ACTIVE;
}

const omu_PrimEnumRow* omu_PrimEnumTable<mdl_PropagationStatusEnm, 1>::Rows() noexcept {
  static constexpr omu_PrimEnumRow rows[] = {
      {"NOT_YET_ACTIVE", NOT_YET_ACTIVE},
      {"CREATED", CREATED},
      {"PROPAGATED", PROPAGATED},
      {"MODIFIED", MODIFIED},
      {"DEACTIVATED", DEACTIVATED},
      {"NO_LONGER_ACTIVE", NO_LONGER_ACTIVE},
      {"TYPE_NOT_APPLICABLE", TYPE_NOT_APPLICABLE},
      {"INSTANCE_NOT_APPLICABLE", INSTANCE_NOT_APPLICABLE},
      {"BUILT_INTO_BASE_STATE", BUILT_INTO_BASE_STATE},
      {"PROPAGATED_FROM_BASE_STATE", PROPAGATED_FROM_BASE_STATE},
      {"MODIFIED_FROM_BASE_STATE", MODIFIED_FROM_BASE_STATE},
      {"DEACTIVATED_FROM_BASE_STATE", DEACTIVATED_FROM_BASE_STATE},
      {"BUILT_INTO_MODES", BUILT_INTO_MODES},
      {"COMPUTED", COMPUTED},
      {"PROPAGATED_FROM_COMPUTED", PROPAGATED_FROM_COMPUTED},
      {"RESET_TO_INITIAL", RESET_TO_INITIAL},
      {"PROPAGATED_FROM_FREQUENCY", PROPAGATED_FROM_FREQUENCY},
      {nullptr, 0},
  };
  return rows;
}
