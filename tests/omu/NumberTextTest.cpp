// The fast number text against the C runtime's "%.15lg" over a million varied doubles.
#include <omu_PrimNumber.h>

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {
std::string Reference(double value) {
  // The library keeps a NaN's sign, as glibc's printf does and MinGW's does not.
  if (std::isnan(value)) return std::signbit(value) ? "-nan.0" : "nan.0";
  char text[64];
  const int length = std::snprintf(text, sizeof text, "%.15lg", value);
  std::string out(text, static_cast<std::size_t>(length));
  if (out.find('.') == std::string::npos && out.find('e') == std::string::npos) out += ".0";
  return out;
}

// Random bit patterns, integers, powers of ten, values halfway between 15-digit neighbours,
// subnormals, huge and tiny magnitudes, full mantissas of everyday size, and short decimals.
std::vector<double> VariedDoubles(int count) {
  std::mt19937_64 random(20240611);
  std::vector<double> values;
  values.reserve(static_cast<std::size_t>(count));
  for (int i = 0; static_cast<int>(values.size()) < count; ++i) {
    const std::uint64_t bits = random();
    double value = 0;
    switch (i % 9) {
      case 0:
        std::memcpy(&value, &bits, sizeof value);
        break;
      case 1:
        value = static_cast<double>(static_cast<std::int64_t>(bits) >> (bits % 64));
        break;
      case 2:
        value = std::pow(10.0, static_cast<int>(bits % 640) - 320);
        break;
      case 3: {  // d.dddddddddddddd5 x 10^e: the 16th digit sits on the rounding edge
        const auto mantissa = static_cast<double>(bits % 900000000000000ull + 100000000000000ull);
        value = (mantissa * 10 + 5) * std::pow(10.0, static_cast<int>(bits % 40) - 35);
        break;
      }
      case 4: {
        const std::uint64_t subnormal = bits & 0x000FFFFFFFFFFFFFull;
        std::memcpy(&value, &subnormal, sizeof value);
        break;
      }
      case 5:
        value = std::ldexp(static_cast<double>(bits >> 11), 960 + static_cast<int>(bits % 60));
        break;
      case 6:
        value = std::ldexp(static_cast<double>(bits >> 11), -1070 + static_cast<int>(bits % 60));
        break;
      case 7:  // full 53-bit mantissas between about 1e-8 and 1e12, where scaling decides
        value = std::ldexp(static_cast<double>(bits >> 11), static_cast<int>(bits % 93) - 80);
        break;
      default:
        value = static_cast<double>(bits % 2000001) / 1000.0 - 1000.0;
        break;
    }
    if (std::isfinite(value)) values.push_back(i % 3 == 0 ? -value : value);
  }
  return values;
}
}  // namespace

TEST(NumberText, MatchesPrintfOverAMillionVariedDoubles) {
  char text[omu_PrimNumber::MaxDoubleText];
  int mismatches = 0;
  for (const double value : VariedDoubles(1000000)) {
    const int length = omu_PrimNumber::FormatDouble(value, text);
    const std::string expected = Reference(value);
    if (std::string(text, static_cast<std::size_t>(length)) != expected && ++mismatches < 10) {
      ADD_FAILURE() << "value " << std::hexfloat << value << ": got "
                    << std::string(text, static_cast<std::size_t>(length)) << ", want " << expected;
    }
  }
  EXPECT_EQ(mismatches, 0);
}

// Where the layout or the scaling changes: signed zeros, non-finite values, the ends of the
// double range, and each power of ten with its two neighbours; and the longest texts, which
// must fit the buffer.
TEST(NumberText, MatchesPrintfAtTheEdges) {
  using limits = std::numeric_limits<double>;
  std::vector<double> values = {0.0,
                                limits::infinity(),
                                limits::quiet_NaN(),
                                limits::max(),
                                limits::min(),
                                limits::denorm_min(),
                                1e15 - 0.5,
                                1e15 + 2,
                                999999999999999.4,
                                999999999999999.6,
                                0.0001,
                                1e-5};
  values.insert(values.end(), {1.2345678901234567e-308, 9.99999999999999e+99});
  for (int k = -323; k <= 308; ++k) {
    const double power = std::pow(10.0, k);
    values.insert(values.end(), {power, std::nextafter(power, 0.0), std::nextafter(power, 1e300)});
  }
  char text[omu_PrimNumber::MaxDoubleText];
  for (const double value : values) {
    for (const double signed_value : {value, -value}) {
      const int length = omu_PrimNumber::FormatDouble(signed_value, text);
      ASSERT_LE(length, omu_PrimNumber::MaxDoubleText) << std::hexfloat << signed_value;
      EXPECT_EQ(std::string(text, static_cast<std::size_t>(length)), Reference(signed_value))
          << std::hexfloat << signed_value;
    }
  }
}
