#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_ColorArray
/// A palette of packed 0xRRGGBBAA colours; copies share the entries until one is written.
#include <g3d_Color.h>

#include <cow_List.h>

class CVX_EXPORT g3d_ColorArray {
public:
  g3d_ColorArray() = default;
  /// Member-wise copy.
  ///@{
  g3d_ColorArray(const g3d_ColorArray&) = default;
  g3d_ColorArray& operator=(const g3d_ColorArray&) = default;
  ///@}
  virtual ~g3d_ColorArray();

  /// The number of entries.
  int Length() const noexcept { return m_Colors.Length(); }
  /// Appends the colour (clamped, packed) and answers its index.
  unsigned int Append(const g3d_Color& color);
  /// An index beyond the palette raises the list's out-of-range error.
  g3d_Color GetColor(unsigned int index) const;
  /// The same as three components.
  void GetColor(unsigned int index, float& r, float& g, float& b) const;
  /// Unpacks 0xRRGGBBAA into components in [0, 1].
  static g3d_Color IntToFloatColor(unsigned int packed) noexcept;
  /// Replaces the alpha of every entry.
  void SetAlpha(float alpha);
  /// The packed value of the colour clamped into [0, 1], so that out-of-range components
  /// cannot wrap around in their byte.
  static unsigned int CheckColor(const g3d_Color& color) noexcept;
  /// Makes every entry stand out against the background (g3d_Color::Invert, luma apart by
  /// at least 0.25).
  void ContrastColors(const g3d_Color& background);
  /// Empties the palette.
  void Cleanup() noexcept;

private:
  cow_List<unsigned int> m_Colors;
};

/// @}
