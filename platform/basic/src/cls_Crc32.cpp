#include "cls_Crc32.h"

#include <array>
#include <cstddef>

#if defined(__x86_64__) && (defined(__GNUC__) || defined(__clang__))
#define CVX_CRC_FOLDING 1
#include <immintrin.h>
#endif

namespace {
using Tables = std::array<std::array<std::uint32_t, 256>, 8>;

const Tables& SliceTables() noexcept {
  static const Tables tables = [] {
    Tables t{};
    for (std::uint32_t i = 0; i < 256; ++i) {
      std::uint32_t c = i;
      for (int k = 0; k < 8; ++k) c = (c & 1) ? 0xEDB88320u ^ (c >> 1) : c >> 1;
      t[0][i] = c;
    }
    for (std::size_t n = 1; n < 8; ++n) {
      for (std::size_t i = 0; i < 256; ++i) {
        t[n][i] = (t[n - 1][i] >> 8) ^ t[0][t[n - 1][i] & 0xFFu];
      }
    }
    return t;
  }();
  return tables;
}

// The running (inverted) remainder over size bytes, eight at a time.
std::uint32_t Slices(const unsigned char* at, std::size_t size, std::uint32_t crc) noexcept {
  const Tables& t = SliceTables();
  for (; size >= 8; at += 8, size -= 8) {
    const std::uint32_t low = crc ^ (at[0] | at[1] << 8 | at[2] << 16 | std::uint32_t{at[3]} << 24);
    crc = t[7][low & 0xFFu] ^ t[6][(low >> 8) & 0xFFu] ^ t[5][(low >> 16) & 0xFFu] ^
          t[4][low >> 24] ^ t[3][at[4]] ^ t[2][at[5]] ^ t[1][at[6]] ^ t[0][at[7]];
  }
  for (; size != 0; ++at, --size) crc = t[0][(crc ^ *at) & 0xFFu] ^ (crc >> 8);
  return crc;
}

#ifdef CVX_CRC_FOLDING
#define CVX_FOLDING_TARGET __attribute__((target("pclmul,sse4.1")))

CVX_FOLDING_TARGET inline __m128i Load(const unsigned char* at) noexcept {
  return _mm_loadu_si128(reinterpret_cast<const __m128i*>(at));
}

// x carried 128 bits further (by the power k holds), plus the next 16 bytes.
CVX_FOLDING_TARGET inline __m128i Fold(__m128i x, __m128i k, __m128i next) noexcept {
  const __m128i low = _mm_clmulepi64_si128(x, k, 0x00);
  const __m128i high = _mm_clmulepi64_si128(x, k, 0x11);
  return _mm_xor_si128(_mm_xor_si128(high, low), next);
}

// Folds four 16-byte lanes by carry-less multiplication, then reduces them to the 32-bit
// remainder (Barrett). size is a multiple of 16, at least 64. The constants are the powers of
// x modulo the polynomial, bit-reflected, for distances of 512, 128 and 64 bits.
CVX_FOLDING_TARGET std::uint32_t Folds(const unsigned char* at, std::size_t size,
                                       std::uint32_t crc) noexcept {
  __m128i x1 = _mm_xor_si128(Load(at), _mm_cvtsi32_si128(static_cast<int>(crc)));
  __m128i x2 = Load(at + 16);
  __m128i x3 = Load(at + 32);
  __m128i x4 = Load(at + 48);
  at += 64;
  size -= 64;
  const __m128i k1k2 = _mm_set_epi64x(0x01c6e41596, 0x0154442bd4);
  for (; size >= 64; at += 64, size -= 64) {
    x1 = Fold(x1, k1k2, Load(at));
    x2 = Fold(x2, k1k2, Load(at + 16));
    x3 = Fold(x3, k1k2, Load(at + 32));
    x4 = Fold(x4, k1k2, Load(at + 48));
  }
  const __m128i k3k4 = _mm_set_epi64x(0x00ccaa009e, 0x01751997d0);
  x1 = Fold(x1, k3k4, x2);
  x1 = Fold(x1, k3k4, x3);
  x1 = Fold(x1, k3k4, x4);
  for (; size >= 16; at += 16, size -= 16) x1 = Fold(x1, k3k4, Load(at));

  // 128 bits to 64, then to 32 by Barrett reduction.
  const __m128i low32 = _mm_setr_epi32(~0, 0, ~0, 0);
  x1 = _mm_xor_si128(_mm_srli_si128(x1, 8), _mm_clmulepi64_si128(x1, k3k4, 0x10));
  const __m128i k5 = _mm_set_epi64x(0, 0x0163cd6124);
  x1 = _mm_xor_si128(_mm_clmulepi64_si128(_mm_and_si128(x1, low32), k5, 0x00),
                     _mm_srli_si128(x1, 4));
  const __m128i poly = _mm_set_epi64x(0x01f7011641, 0x01db710641);
  __m128i reduced = _mm_clmulepi64_si128(_mm_and_si128(x1, low32), poly, 0x10);
  reduced = _mm_clmulepi64_si128(_mm_and_si128(reduced, low32), poly, 0x00);
  return static_cast<std::uint32_t>(_mm_extract_epi32(_mm_xor_si128(x1, reduced), 1));
}

bool CanFold() noexcept {
  static const bool can = __builtin_cpu_supports("pclmul") && __builtin_cpu_supports("sse4.1");
  return can;
}
#endif
}  // namespace

std::uint32_t cls_Crc32(std::string_view bytes) noexcept {
  const auto* at = reinterpret_cast<const unsigned char*>(bytes.data());
  std::size_t size = bytes.size();
  std::uint32_t crc = 0xFFFFFFFFu;
#ifdef CVX_CRC_FOLDING
  if (size >= 64 && CanFold()) {
    const std::size_t folded = size & ~std::size_t{15};
    crc = Folds(at, folded, crc);
    at += folded;
    size -= folded;
  }
#endif
  return Slices(at, size, crc) ^ 0xFFFFFFFFu;
}
