#pragma once
/// \addtogroup omu
/// @{

/// \class omu_Shortcut
/// Addresses an object in the repository by its access path, the text a script would write to
/// reach it (mdb.models['Model-1'].parts['Part-1']).
#include <CVX_Export.h>
#include <cow_String.h>

class CVX_EXPORT omu_Shortcut {
public:
  omu_Shortcut() = default;
  /// The object at path.
  explicit omu_Shortcut(const cow_String& path) : m_Path(path) {}
  virtual ~omu_Shortcut();

  /// The access path.
  virtual cow_String Path() const { return m_Path; }
  /// True for an empty path.
  bool IsEmpty() const { return Path().IsEmpty(); }

private:
  cow_String m_Path;
};

/// @}
