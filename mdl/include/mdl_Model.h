#pragma once
/// \addtogroup mdl
/// @{

/// \class mdl_Model
/// The scope of the model's enumerated settings that cross the scripting boundary.
#include <CVX_Export.h>
#include <omu_PrimEnumRow.h>

class CVX_EXPORT mdl_Model {
public:
  /// The formulation setting.
  enum FormulationEnm : int { NOT_SET = 0, SCATTERED = 1, TOTAL = 2 };
  /// A restart written at the end of the step.
  enum RestartIncEnm : int { STEP_END = -2 };
};

/// The names of mdl_Model::FormulationEnm.
template <>
struct omu_PrimEnumTable<mdl_Model::FormulationEnm, 1> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};

/// The names of mdl_Model::RestartIncEnm.
template <>
struct omu_PrimEnumTable<mdl_Model::RestartIncEnm, 1> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};

/// @}
