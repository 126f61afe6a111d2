#pragma once
/// \addtogroup omu
/// @{

/// \class omu_RangeErrorException
/// A number outside its permitted range. The limits arrive as ready-made text; each
/// qualifier is 0 (no limit on that side), 1 (inclusive) or 2 (exclusive); the keyword type
/// is 1 for an integer, 2 for a float.
#include <CVX_Export.h>
#include <UTI_FieldError.h>
#include <UTI_Modules.h>
#include <nex_CommandException.h>

class CVX_EXPORT omu_RangeErrorException
    : public UTI_FieldError<omu_RangeErrorException, nex_CommandException> {
public:
  /// keyword's value is outside the limits given as text, each with its qualifier (see the class).
  omu_RangeErrorException(const atr_String& keyword, int keywordType, const atr_String& lowerLimit,
                          int lowerQualifier, const atr_String& higherLimit, int higherQualifier)
      : m_Keyword(keyword),
        m_KeywordType(keywordType),
        m_LowerLimitAsString(lowerLimit),
        m_LowerLimitQualifier(lowerQualifier),
        m_HigherLimitAsString(higherLimit),
        m_HigherLimitQualifier(higherQualifier) {}
  /// Reads the object back from the record reader is at.
  explicit omu_RangeErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override;
  cow_String PythonType() const override { return "RangeError"; }

  /// The keyword whose value is out of range.
  const atr_String& Keyword() const noexcept { return m_Keyword; }
  /// 1 for an integer, 2 for a float.
  int KeywordType() const noexcept { return m_KeywordType; }
  /// The lower limit's text and qualifier.
  ///@{
  const atr_String& LowerLimit() const noexcept { return m_LowerLimitAsString; }
  int LowerQualifier() const noexcept { return m_LowerLimitQualifier; }
  ///@}
  /// The higher limit's text and qualifier.
  ///@{
  const atr_String& HigherLimit() const noexcept { return m_HigherLimitAsString; }
  int HigherQualifier() const noexcept { return m_HigherLimitQualifier; }
  ///@}

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_RangeErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(9); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    using E = omu_RangeErrorException;
    return UTI_FieldTable{
        UTI_Field{"m_Keyword", &E::m_Keyword, cls_KIND_STRING},
        UTI_Field{"m_KeywordType", &E::m_KeywordType, cls_KIND_INT},
        UTI_Field{"m_LowerLimitAsString", &E::m_LowerLimitAsString, cls_KIND_STRING},
        UTI_Field{"m_LowerLimitQualifier", &E::m_LowerLimitQualifier, cls_KIND_INT},
        UTI_Field{"m_HigherLimitAsString", &E::m_HigherLimitAsString, cls_KIND_STRING},
        UTI_Field{"m_HigherLimitQualifier", &E::m_HigherLimitQualifier, cls_KIND_INT}};
  }

  atr_String m_Keyword;
  int m_KeywordType = 0;
  atr_String m_LowerLimitAsString;
  int m_LowerLimitQualifier = 0;
  atr_String m_HigherLimitAsString;
  int m_HigherLimitQualifier = 0;
};

/// @}
