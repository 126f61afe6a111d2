#include <omi_complex.h>

#include <cmath>

omi_complex omi_complex::FromPolar(double modulus, double argument) noexcept {
  omi_complex polar(modulus, argument);
  polar.m_Polar = true;
  return polar;
}

double omi_complex::Real() const noexcept { return m_Polar ? m_A * std::cos(m_B) : m_A; }

double omi_complex::Imag() const noexcept { return m_Polar ? m_A * std::sin(m_B) : m_B; }
