#pragma once
/// \addtogroup omu
/// @{

/// \class omu_KeywordErrorException
/// A keyword argument that the command does not take. The nesting text runs straight into
/// the words "keyword error on".
#include <UTI_FieldError.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_KeywordErrorException
    : public UTI_FieldError<omu_KeywordErrorException, omu_TypeErrorException> {
public:
  /// keyword was not expected; nesting is put before the message as given.
  explicit omu_KeywordErrorException(const atr_String& keyword,
                                     const atr_String& nesting = atr_String())
      : m_Keyword(keyword), m_NestingStr(nesting) {}
  /// Reads the object back from the record reader is at.
  explicit omu_KeywordErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override {
    return atr_StringBase::Format("%skeyword error on %s", m_NestingStr.CStr(), m_Keyword.CStr());
  }

  /// The keyword given.
  const atr_String& Keyword() const noexcept { return m_Keyword; }
  /// The text before the message; empty at the top level.
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_KeywordErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(5); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    using E = omu_KeywordErrorException;
    return UTI_FieldTable{UTI_Field{"m_Keyword", &E::m_Keyword, cls_KIND_STRING},
                          UTI_Field{"m_NestingStr", &E::m_NestingStr, cls_KIND_STRING}};
  }

  atr_String m_Keyword;
  atr_String m_NestingStr;
};

/// @}
