#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_ColorMap
/// The process-wide table of colour names ("Red", "Sky blue", "Grey60", ...), all opaque.
/// Created when the g3d module starts (or on first use without it), destroyed when it stops.
/// Threads: once created it is only read, so any number of threads may look names up at once;
/// the creation on first use is not locked.
#include <g3d_Color.h>

#include <cow_Map.h>

class CVX_EXPORT g3d_ColorMap {
public:
  g3d_ColorMap();

  /// The table, created on first use.
  static g3d_ColorMap& Instance();
  /// Destroys the table; the next Instance() makes a new one.
  static void Destroy() noexcept;

  /// The number of names.
  int Length() const noexcept { return m_Colors.Length(); }
  /// The colour of a name, or null. Names are case-sensitive.
  const g3d_Color* Find(const cow_String& name) const { return m_Colors.Find(name); }
  /// The colour of a name; an unknown name raises g3d_ColorErrorException.
  const g3d_Color& Lookup(const cow_String& name) const;
  /// Every name with its colour.
  const cow_Map<cow_String, g3d_Color>& Colors() const noexcept { return m_Colors; }

private:
  cow_Map<cow_String, g3d_Color> m_Colors;
};

/// @}
