#pragma once
// The slot a key starts at in a table of Slots entries (a power of two): the key times the
// golden ratio's 64-bit fraction, top bits, which spreads keys that differ only in their low
// bits or only in their high bits (hashes of short strings, aligned addresses).
#include <bit>
#include <cstddef>
#include <cstdint>

template <std::size_t Slots>
std::size_t py_HomeSlot(std::uint64_t key) noexcept {
  static_assert(std::has_single_bit(Slots) && Slots > 1);
  return static_cast<std::size_t>((key * 0x9E3779B97F4A7C15ULL) >> (64 - std::countr_zero(Slots)));
}
