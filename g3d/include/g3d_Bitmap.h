#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Bitmap
/// A raster of bits, used for marker symbols. Rows are packed most significant bit first
/// and padded to whole bytes; row 0 is the top row, or the bottom row when the bitmap was
/// sized bottom-up (the order that raster APIs drawing from the lower left expect).
#include <g3d_Marker.h>

#include <vector>

class CVX_EXPORT g3d_Bitmap {
public:
  g3d_Bitmap() = default;

  /// Every bit starts as set; x runs right and y down from the top-left corner whatever the
  /// storage order.
  void SetSize(int width, int height, bool set, bool bottomUp);
  /// 0 or 1; outside the raster 0.
  int GetBit(int x, int y) const noexcept;
  /// Sets or clears one bit; outside the raster nothing happens.
  void SetBit(int x, int y, bool on) noexcept;
  /// A size x size raster holding the symbol centred (size below 1 is taken as 1). The
  /// storage order is kept.
  void SetMarker(g3d_MarkerEnum marker, int size);

  /// The size in bits.
  ///@{
  int Width() const noexcept { return m_Width; }
  int Height() const noexcept { return m_Height; }
  ///@}
  /// The bytes of one row.
  int RowBytes() const noexcept { return (m_Width + 7) / 8; }
  /// The packed rows in storage order (see the class); valid until the next change.
  const unsigned char* Data() const noexcept { return m_Bits.data(); }

  /// Same size, storage order and bits.
  ///@{
  bool operator==(const g3d_Bitmap& o) const noexcept {
    return m_Width == o.m_Width && m_Height == o.m_Height && m_BottomUp == o.m_BottomUp &&
           m_Bits == o.m_Bits;
  }
  bool operator!=(const g3d_Bitmap& o) const noexcept { return !(*this == o); }
  ///@}

private:
  int Row(int y) const noexcept { return m_BottomUp ? m_Height - 1 - y : y; }
  // The byte holding bit (x, y), both in range.
  std::size_t Offset(int x, int y) const noexcept {
    return static_cast<std::size_t>(Row(y)) * static_cast<std::size_t>(RowBytes()) +
           static_cast<std::size_t>(x / 8);
  }

  int m_Width = 0;
  int m_Height = 0;
  bool m_BottomUp = false;
  std::vector<unsigned char> m_Bits;
};

/// @}
