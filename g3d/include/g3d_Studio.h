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
  /// The number of lights.
  static constexpr int LightCount = 8;

  g3d_Studio();

  /// True when the test-print set-up was taken.
  bool testPrint = false;
  /// The specular exponent (105; 25 for test print).
  float shininess = 105.0f;
  /// The ambient colour, as g3d_Light's colours.
  cow_String ambientColor = "#707070";
  /// The lights.
  g3d_Light lights[LightCount];

  /// Every field and light equal.
  bool operator==(const g3d_Studio& o) const noexcept;
};

/// @}
