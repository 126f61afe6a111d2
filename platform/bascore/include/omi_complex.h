#pragma once
/// \addtogroup bascore
/// @{

/// \class omi_complex
/// A complex number, held either in Cartesian form (real, imaginary) or in its converted
/// polar form (modulus, argument in radians). Real() and Imag() answer the Cartesian parts
/// of either form; equality compares those.
#include <BASCORE_Export.h>

class BASCORE_EXPORT omi_complex {
public:
  constexpr omi_complex() noexcept = default;
  /// Cartesian (real, imag).
  constexpr omi_complex(double real, double imag) noexcept : m_A(real), m_B(imag) {}
  /// Polar (modulus, argument in radians), kept in that form.
  static omi_complex FromPolar(double modulus, double argument) noexcept;

  /// True when held in polar form.
  bool IsPolar() const noexcept { return m_Polar; }
  /// The Cartesian parts, whatever the form.
  ///@{
  double Real() const noexcept;
  double Imag() const noexcept;
  ///@}
  /// The same number in the other form.
  omi_complex ToCartesian() const noexcept { return {Real(), Imag()}; }

  friend bool operator==(const omi_complex& a, const omi_complex& b) noexcept {
    return a.Real() == b.Real() && a.Imag() == b.Imag();
  }

private:
  double m_A = 0.0;  ///< real part, or modulus
  double m_B = 0.0;  ///< imaginary part, or argument
  bool m_Polar = false;
};

/// @}
