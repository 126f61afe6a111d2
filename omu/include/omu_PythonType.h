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
  static constexpr char Generic[] = "CorvexObject";

  omu_PythonType() : m_Name(Generic) {}
  explicit omu_PythonType(const cow_String& name) : m_Name(name) {}

  const cow_String& Name() const noexcept { return m_Name; }
  bool IsGeneric() const noexcept { return m_Name == Generic; }

private:
  cow_String m_Name;
};

/// @}
