#pragma once
/// \addtogroup omu
/// @{

/// \class omu_CorvexName
/// A validated name. Constructing one from text and a kind checks the text against that kind's
/// rules and raises omu_CorNameErrorException (with the kind's error code, or 1 for an empty
/// name) when it breaks one; a kind outside 0-7 is not checked. Each object keeps the three
/// pattern texts (views of the library's constants, so keeping them costs nothing); the rules
/// are compiled from them once per process, so checking a name costs a table lookup per byte.
#include <CVX_Export.h>
#include <cow_String.h>
#include <omu_CorvexNameEnum.h>

class CVX_EXPORT omu_CorvexName {
public:
  omu_CorvexName();
  /// Checks name against kind's rules (see the class).
  ///@{
  omu_CorvexName(const cow_String& name, omu_CorvexNameEnum kind);
  omu_CorvexName(const char* name, omu_CorvexNameEnum kind);
  ///@}

  /// The name.
  const cow_String& Name() const noexcept { return m_Name; }
  /// The kind it was checked as.
  omu_CorvexNameEnum Kind() const noexcept { return m_Kind; }
  /// The kind's rule texts: the character class a name may not start with, and those it may not
  /// contain.
  ///@{
  std::string_view LeadingPattern() const noexcept { return m_LeadingPattern; }
  std::string_view WideForbiddenPattern() const noexcept { return m_WidePattern; }
  std::string_view NarrowForbiddenPattern() const noexcept { return m_NarrowPattern; }
  ///@}

  /// The error code a name of this kind gets (see omu_CorNameErrorException), or -1 when the
  /// name is legal.
  static int Check(std::string_view name, omu_CorvexNameEnum kind) noexcept;

  /// Repairs name in place towards the short general rules. replacements holds at least six
  /// bytes, one per repair (a leading digit gets replacement 0 put in front; the first double
  /// quote, full stop and backslash get replacements 1-3; a leading and a trailing "_" or blank
  /// get 4 and 5); a full stop deletes instead of replacing. Answers false, leaving the name as
  /// it was, when the name repairs to nothing -- or, rather than looping forever, when the
  /// replacements keep recreating the faults they repair.
  static bool MakeLegalGuiName(cow_String& name, const char* replacements);
  /// Puts double quotes around each dot-separated piece that holds a blank, a single quote,
  /// "=" or "," and is not quoted already.
  static cow_String QuoteIfNeeded(const cow_String& name);

private:
  std::string_view m_LeadingPattern;
  std::string_view m_WidePattern;
  std::string_view m_NarrowPattern;
  cow_String m_Name;
  omu_CorvexNameEnum m_Kind = omu_GENERAL_NAME;
};

/// @}
