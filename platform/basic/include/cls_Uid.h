#pragma once
/// \addtogroup basic
/// @{

/// \class cls_Uid
/// Persistence identity: 64 bits; default-constructed is null, AllocateUid() gives a fresh one.
#include <BASIC_Export.h>

#include <compare>
#include <cstdint>

class BASIC_EXPORT cls_Uid {
public:
  constexpr cls_Uid() noexcept = default;
  /// The uid of that value (0 is the null uid).
  constexpr explicit cls_Uid(std::uint64_t value) noexcept : m_Value(value) {}

  /// A new uid, unique in the process; safe on any thread.
  static cls_Uid AllocateUid() noexcept;

  /// True for the null uid.
  constexpr bool IsNull() const noexcept { return m_Value == 0; }
  /// The number.
  constexpr std::uint64_t Value() const noexcept { return m_Value; }
  // NOLINTNEXTLINE(modernize-use-nullptr): the defaulted comparison holds no pointer
  friend constexpr auto operator<=>(const cls_Uid&, const cls_Uid&) noexcept = default;

private:
  std::uint64_t m_Value = 0;
};

/// @}
