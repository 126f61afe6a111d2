#pragma once
/// \addtogroup omu
/// @{

/// \class omu_KeywordTypeErrorException
/// A keyword argument of the wrong type. Inside another argument the keyword is shown as a
/// quoted subscript of the enclosing one.
#include <UTI_FieldError.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_KeywordTypeErrorException
    : public UTI_FieldError<omu_KeywordTypeErrorException, omu_TypeErrorException> {
public:
  /// keyword's value is found where expecting was wanted; nesting names the enclosing argument, if
  /// any.
  omu_KeywordTypeErrorException(const atr_String& keyword, const atr_String& expecting,
                                const atr_String& found, const atr_String& nesting = atr_String())
      : m_Keyword(keyword), m_Expecting(expecting), m_Found(found), m_NestingStr(nesting) {}
  /// Reads the object back from the record reader is at.
  explicit omu_KeywordTypeErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override;

  /// The keyword.
  const atr_String& Keyword() const noexcept { return m_Keyword; }
  /// The type wanted.
  const atr_String& Expecting() const noexcept { return m_Expecting; }
  /// The type given.
  const atr_String& Found() const noexcept { return m_Found; }
  /// The enclosing argument's label; empty at the top level.
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_KeywordTypeErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(2); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    using E = omu_KeywordTypeErrorException;
    return UTI_FieldTable{UTI_Field{"m_Keyword", &E::m_Keyword, cls_KIND_STRING},
                          UTI_Field{"m_Expecting", &E::m_Expecting, cls_KIND_STRING},
                          UTI_Field{"m_Found", &E::m_Found, cls_KIND_STRING},
                          UTI_Field{"m_NestingStr", &E::m_NestingStr, cls_KIND_STRING}};
  }

  atr_String m_Keyword;
  atr_String m_Expecting;
  atr_String m_Found;
  atr_String m_NestingStr;
};

/// @}
