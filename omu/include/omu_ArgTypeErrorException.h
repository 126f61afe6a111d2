#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ArgTypeErrorException
/// An argument of the wrong type: m_ArgNum is its 1-based position, labelled argN at the top
/// level and `<nesting>[N-1]` inside another argument.
#include <UTI_FieldError.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_ArgTypeErrorException
    : public UTI_FieldError<omu_ArgTypeErrorException, omu_TypeErrorException> {
public:
  /// Argument argNum (1-based) is found where expecting was wanted; nesting names the enclosing
  /// argument, if any.
  omu_ArgTypeErrorException(int argNum, const atr_String& expecting, const atr_String& found,
                            const atr_String& nesting = atr_String())
      : m_ArgNum(argNum), m_Expecting(expecting), m_Found(found), m_NestingStr(nesting) {}
  /// Reads the object back from the record reader is at.
  explicit omu_ArgTypeErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override;

  /// The 1-based position.
  int ArgNum() const noexcept { return m_ArgNum; }
  /// The type wanted.
  const atr_String& Expecting() const noexcept { return m_Expecting; }
  /// The type given.
  const atr_String& Found() const noexcept { return m_Found; }
  /// The enclosing argument's label; empty at the top level.
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_ArgTypeErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(3); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    using E = omu_ArgTypeErrorException;
    return UTI_FieldTable{UTI_Field{"m_ArgNum", &E::m_ArgNum, cls_KIND_INT},
                          UTI_Field{"m_Expecting", &E::m_Expecting, cls_KIND_STRING},
                          UTI_Field{"m_Found", &E::m_Found, cls_KIND_STRING},
                          UTI_Field{"m_NestingStr", &E::m_NestingStr, cls_KIND_STRING}};
  }

  int m_ArgNum = 0;
  atr_String m_Expecting;
  atr_String m_Found;
  atr_String m_NestingStr;
};

/// @}
