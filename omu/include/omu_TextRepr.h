#pragma once
/// \addtogroup omu
/// @{

/// \class omu_TextRepr
/// The process-wide limits of the script text of values, made when the omu module starts. Set
/// them on the main thread before printing starts: they are read without locks.
///
/// Printers of objects and containers of objects follow one rule (BoundedText): simple
/// style prints a fixed short text; at or past the maximum recursion an object prints as
/// GetMaxRecursionString; otherwise the contents print, at most the maximum number of
/// elements, each one level deeper.
#include <CVX_Export.h>
#include <cow_String.h>

#include <climits>

class omu_InterfaceObj;

class CVX_EXPORT omu_TextRepr {
public:
  /// The settings, created on first use and destroyed by omu_finalize.
  static omu_TextRepr& Instance();
  /// Destroys the settings (omu_finalize); the next Instance() makes new ones.
  static void Release() noexcept;
  /// True while the settings exist.
  static bool Exists() noexcept;

  /// 1: objects print as a fixed short text (default 0).
  ///@{
  int GetSimpleStyle() const noexcept { return m_SimpleStyle; }
  void SetSimpleStyle(int style) noexcept { m_SimpleStyle = style; }
  ///@}
  /// The nesting level at which objects stop printing their contents (default 1).
  ///@{
  int GetMaxRecursion() const noexcept { return m_MaxRecursion; }
  void SetMaxRecursion(int depth) noexcept { m_MaxRecursion = depth; }
  ///@}
  /// The most elements a sequence prints (default INT_MAX).
  ///@{
  int GetMaxElementsInSequence() const noexcept { return m_MaxElements; }
  void SetMaxElementsInSequence(int count) noexcept { m_MaxElements = count; }
  ///@}
  /// Kept for the host; no printer of this library reads the next three.
  ///@{
  int GetMaxReprStringSizeMB() const noexcept { return m_MaxTextMB; }
  void SetMaxReprStringSizeMB(int megabytes) noexcept { m_MaxTextMB = megabytes; }
  double GetZeroTolerance() const noexcept { return m_ZeroTolerance; }
  void SetZeroTolerance(double tolerance) noexcept { m_ZeroTolerance = tolerance; }
  int GetSignificantDigits() const noexcept { return m_SignificantDigits; }
  void SetSignificantDigits(int digits) noexcept { m_SignificantDigits = digits; }
  ///@}
  /// The format objects print as at the recursion limit, its `%s` the type name.
  void SetMaxRecursionString(const cow_String& format) { m_MaxRecursionFormat = format; }
  /// The recursion-limit format itself, unformatted (what a null object prints as).
  const cow_String& GetMaxRecursionString() const noexcept { return m_MaxRecursionFormat; }
  /// What an object of the exposed type name prints as at the recursion limit: the format's
  /// `%s` replaced by the name, in single quotes ('Part object' by default).
  cow_String MaxRecursionText(const cow_String& typeName) const;
  /// For an object, MaxRecursionText of its exposed type name; for null, the format itself.
  cow_String GetMaxRecursionString(const omu_InterfaceObj* object) const;
  /// Whether objects print their private ("_...") members (default false).
  bool ShowPrivateMembers() const noexcept { return m_ShowPrivate; }
  /// Whether objects print their members sorted by name (default true).
  bool SortMembers() const noexcept { return m_SortMembers; }

  /// The bounded printing of an object or a container of objects at nesting level: simple
  /// style gives simpleText, the recursion limit gives MaxRecursionText(typeName), and
  /// otherwise printContents() is answered.
  template <class PrintContents>
  cow_String BoundedText(int level, const char* simpleText, const cow_String& typeName,
                         PrintContents&& printContents) const {
    if (m_SimpleStyle == 1) return simpleText;
    if (level >= m_MaxRecursion) return MaxRecursionText(typeName);
    return printContents();
  }

private:
  int m_SimpleStyle = 0;
  int m_MaxRecursion = 1;
  int m_MaxElements = INT_MAX;
  int m_MaxTextMB = 1;
  double m_ZeroTolerance = 1e-06;
  int m_SignificantDigits = 3;
  cow_String m_MaxRecursionFormat = "%s object";
  bool m_ShowPrivate = false;
  bool m_SortMembers = true;
  [[maybe_unused]] bool m_Reserved1 = false;  ///< no reader in this library
  [[maybe_unused]] bool m_Reserved2 = false;
};

/// @}
