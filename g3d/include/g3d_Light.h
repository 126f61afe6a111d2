#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Light
/// One light of a viewport's studio. Its direction comes from latitude and longitude in
/// degrees: latitude 90 points along +y, latitude 0 and longitude 0 along +z.
#include <g3d_Color.h>
#include <g3d_Vector.h>

class CVX_EXPORT g3d_Light {
public:
  /// Whether the light shines (default off).
  bool enabled = false;
  /// Colour names or `#RRGGBB` text (g3d_Color::SetByName).
  ///@{
  cow_String ambientColor = "Black";
  cow_String diffuseColor = "#B3B3B3";
  cow_String specularColor = "#5C5C5C";
  ///@}
  /// The direction the light comes from (default +z); SetPositionVector sets it.
  g3d_Vector position{0.0f, 0.0f, 1.0f};
  float weight = 0.0f;  ///< the share of this light that the studio gives it
  /// Attenuation with distance d: 1 / (constant + linear d + quadratic d^2); none by default.
  ///@{
  float constantAttenuation = 1.0f;
  float linearAttenuation = 0.0f;
  float quadraticAttenuation = 0.0f;
  ///@}
  /// The angles position was last set from, in degrees.
  ///@{
  float latitude = 0.0f;
  float longitude = 0.0f;
  ///@}

  /// Stores the angles and sets position to the unit vector they give (see the class).
  g3d_Light& SetPositionVector(float latitudeDegrees, float longitudeDegrees) noexcept;

  /// Every field equal.
  bool operator==(const g3d_Light& o) const noexcept;
};

/// @}
