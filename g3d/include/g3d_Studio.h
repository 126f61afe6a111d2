#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Studio
/// The lighting set-up of a viewport: a shininess, an ambient colour and eight lights. With
/// the environment variable "CVX_QA_PRINT" set (to anything) it takes the plainer test-print
/// set-up instead; the variable is read once, by the first studio built in the process.
#include <g3d_Light.h>

class CVX_EXPORT g3d_Studio {
public:
  static constexpr int LightCount = 8;

  g3d_Studio();

  bool testPrint = false;
  float shininess = 105.0f;
  cow_String ambientColor = "#707070";
  g3d_Light lights[LightCount];

  bool operator==(const g3d_Studio& o) const noexcept;
};

/// @}
