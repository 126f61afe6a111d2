#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Marker
/// Marker symbols, their sizes and line thicknesses. g3d_Marker itself is a named type kept
/// for the interfaces that mention it; the symbols are drawn by g3d_Bitmap::SetMarker.
#include <CVX_Export.h>

/// The marker symbols.
enum g3d_MarkerEnum : int {
  MARKER_FILLED_CIRCLE = 0,
  MARKER_FILLED_SQUARE,
  MARKER_FILLED_DIAMOND,
  MARKER_HOLLOW_CIRCLE,
  MARKER_HOLLOW_SQUARE,
  MARKER_HOLLOW_DIAMOND,
  MARKER_CROSS,
  MARKER_XS,
  MARKER_POINT,
};

/// The marker sizes.
enum g3d_MarkerSizeEnum : int { MARKER_SMALL = 0, MARKER_MEDIUM, MARKER_LARGE };

/// The line thicknesses.
enum g3d_LineThicknessEnum : int {
  THICKNESS_VERY_THIN = 0,
  THICKNESS_THIN,
  THICKNESS_MEDIUM,
  THICKNESS_THICK,
};

class CVX_EXPORT g3d_Marker {
public:
  g3d_Marker() noexcept;
  ~g3d_Marker() = default;
};

/// @}
