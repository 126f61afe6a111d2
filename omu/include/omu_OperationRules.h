#pragma once
/// \addtogroup omu
/// @{

/// \class omu_OperationRules
/// How script operators treat an interface object. By default two objects are equal only when
/// they are the same handle; with equality by path, two handles on the same repository object
/// (the same path) are equal too.
#include <CVX_Export.h>

class CVX_EXPORT omu_OperationRules {
public:
  constexpr omu_OperationRules() noexcept = default;
  /// Equality by path when equalByPath is set.
  constexpr explicit omu_OperationRules(bool equalByPath) noexcept : m_EqualByPath(equalByPath) {}

  /// Whether equality is by path.
  constexpr bool EqualByPath() const noexcept { return m_EqualByPath; }

private:
  bool m_EqualByPath = false;
};

/// @}
