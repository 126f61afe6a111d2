#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimDictionaryBase
/// What the two dictionary primitives share: type code '{' and the character that says what
/// kind of object a dictionary stands for (its meaning is the creator's; the library only
/// keeps it).
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimDictionaryBase : public omu_Primitive {
public:
  /// The key kind: 's' for text keys, 'i' for integer keys.
  virtual char Kind() const = 0;
  /// What kind of object the dictionary stands for; the creator's meaning.
  char Represents() const noexcept { return m_Represents; }
  unsigned int DynTypeId() const override { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(18); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  /// A dictionary of type code typeCode standing for represents.
  omu_PrimDictionaryBase(char typeCode, char represents) noexcept
      : omu_Primitive(typeCode), m_Represents(represents) {}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimDictionaryBase(const cls_ReadVisitor& reader);
  /// Member-wise copy.
  ///@{
  omu_PrimDictionaryBase(const omu_PrimDictionaryBase&) = default;
  omu_PrimDictionaryBase& operator=(const omu_PrimDictionaryBase&) = default;
  ///@}

private:
  char m_Represents;
  cls_Uid m_DictionaryBaseUid;
};

/// @}
