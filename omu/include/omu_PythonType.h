#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PythonType
/// The root script type of an interface object: the name scripts see when nothing more
/// specific is exposed. "CorvexObject" is the generic root.
#include <CVX_Export.h>
#include <cow_String.h>

class CVX_EXPORT omu_PythonType {
public:
  /// The generic root's name.
  static constexpr char Generic[] = "CorvexObject";

  omu_PythonType() : m_Name(Generic) {}
  /// The root called name; the default is the generic one.
  explicit omu_PythonType(const cow_String& name) : m_Name(name) {}

  /// The name.
  const cow_String& Name() const noexcept { return m_Name; }
  /// True for the generic root.
  bool IsGeneric() const noexcept { return m_Name == Generic; }

private:
  cow_String m_Name;
};

/// @}
