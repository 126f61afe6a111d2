#pragma once
// The scope of the model's enumerated settings that cross the scripting boundary.
#include <CVX_Export.h>

class CVX_EXPORT mdl_Model {
public:
  enum FormulationEnm : int { NOT_SET = 0, SCATTERED = 1, TOTAL = 2 };
  // A restart written at the end of the step.
  enum RestartIncEnm : int { STEP_END = -2 };
};
