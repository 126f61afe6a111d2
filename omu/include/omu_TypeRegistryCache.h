#pragma once
/// \addtogroup omu
/// @{

/// \class omu_TypeRegistryCache
/// The exposed-type registry: which script type names are exposed to scripts, and which names
/// a type answers to in type tests (its own, and any aliases registered for it). Process-wide,
/// made when the omu module starts; fill it on the main thread before scripts run, after
/// which any number of threads may read it. Released by the omu module's finalise.
#include <CVX_Export.h>
#include <cow_Map.h>
#include <cow_String.h>

class CVX_EXPORT omu_TypeRegistryCache {
public:
  /// The registry, created on first use.
  static omu_TypeRegistryCache& Instance();
  /// Releases the instance (module finalise); the next Instance() starts empty.
  static void Release() noexcept;

  /// Exposes typeName to scripts.
  void Expose(const cow_String& typeName);
  /// Lets `alias` match `typeName` in type tests (a script may test against a family name).
  void AddAlias(const cow_String& alias, const cow_String& typeName);
  /// True when typeName is exposed.
  bool IsExposed(const cow_String& typeName) const;
  /// True when asked names the described type itself or one of its aliases.
  bool Matches(const cow_String& asked, const cow_String& described) const;

private:
  cow_Map<cow_String, bool> m_Exposed;
  cow_Map<cow_String, cow_List<cow_String>> m_Aliases;  ///< type name -> aliases
};

/// @}
