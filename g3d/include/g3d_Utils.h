#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Utils
/// Colour ramps for contour legends, marker and line size conversions, and debug checks.
#include <g3d_Color.h>
#include <g3d_Marker.h>

#include <cow_List.h>

class CVX_EXPORT g3d_Utils {
public:
  /// Ramps fill out[0 .. n-1]; reverse stores colour i at n - 1 - i. One colour is the
  /// ramp's start; n <= 0 writes nothing.
  /// Hue 0 to 2/3 at full saturation and value: red, yellow, green, cyan, blue.
  static void Rainbow(g3d_Color* out, int n, bool reverse, float alpha);
  /// The rainbow from its blue end: low values cold, high values hot.
  static void BlueToRed(g3d_Color* out, int n, bool reverse, float alpha);
  /// Greys from black to white.
  static void BlackToWhite(g3d_Color* out, int n, bool reverse, float alpha);
  /// Hues i / n around the whole circle, for cyclic quantities (no colour repeats).
  static void WrapAround(g3d_Color* out, int n, float alpha);
  /// n colours interpolated linearly in RGB between the named colours (colour names or
  /// `#RRGGBB`), spread evenly from the first to the last; an unknown name raises
  /// g3d_ColorErrorException; an empty list writes nothing.
  static void FillInColorsAndInterpolate(const cow_List<cow_String>& names, int n, g3d_Color* out);

  /// Marker edge in pixels: 5, 7, 9.
  static float ConvertMarkerSize(g3d_MarkerSizeEnum size) noexcept;
  /// Line width in pixels: 0.5, 1, 2, 3.
  static float ConvertLineThickness(g3d_LineThicknessEnum thickness) noexcept;

  /// Debug builds raise nex_AssertException with the condition's text; release builds
  /// check nothing.
  static void Assert(bool condition, const char* text);
};

/// @}
