#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ArgNumberErrorException
/// A call with too few or too many arguments. m_NestingStr names the enclosing argument when
/// the count concerns the members of another argument.
#include <UTI_FieldError.h>
#include <omu_TypeErrorException.h>

class CVX_EXPORT omu_ArgNumberErrorException
    : public UTI_FieldError<omu_ArgNumberErrorException, omu_TypeErrorException> {
public:
  /// expecting arguments were wanted and found given; nesting names the enclosing argument, if any.
  omu_ArgNumberErrorException(int expecting, int found, const atr_String& nesting = atr_String())
      : m_Expecting(expecting), m_Found(found), m_NestingStr(nesting) {}
  /// Reads the object back from the record reader is at.
  explicit omu_ArgNumberErrorException(const cls_ReadVisitor& reader) : UTI_FieldError(reader) {
    ReadFields(reader);
  }

  atr_String JournalMessage() const override;

  /// The number wanted.
  int Expecting() const noexcept { return m_Expecting; }
  /// The number given.
  int Found() const noexcept { return m_Found; }
  /// The enclosing argument's label; empty at the top level.
  const atr_String& NestingStr() const noexcept { return m_NestingStr; }

  /// The name the class is registered under.
  static constexpr const char* ClassName = "omu_ArgNumberErrorException";
  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(4); }

private:
  friend UTI_FieldError;
  static constexpr auto Fields() {
    using E = omu_ArgNumberErrorException;
    return UTI_FieldTable{UTI_Field{"m_Expecting", &E::m_Expecting, cls_KIND_INT},
                          UTI_Field{"m_Found", &E::m_Found, cls_KIND_INT},
                          UTI_Field{"m_NestingStr", &E::m_NestingStr, cls_KIND_STRING}};
  }

  int m_Expecting = 0;
  int m_Found = 0;
  atr_String m_NestingStr;
};

/// @}
