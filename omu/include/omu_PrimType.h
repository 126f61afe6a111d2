#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimType
/// A value that names a kind of displayed object ("Part" prints as PartType).
#include <omu_ObjectToDisplayTypeEnm.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class omu_InterfaceObj;

class CVX_EXPORT omu_PrimType : public omu_PrimLeaf<omu_PrimType, omu_Primitive> {
public:
  omu_PrimType() noexcept : omu_PrimLeaf('t') {}
  /// The kind named typeString ("Part").
  explicit omu_PrimType(const cow_String& typeString)
      : omu_PrimLeaf('t'), m_TypeString(typeString) {}
  /// The type of an interface object: its own type string.
  explicit omu_PrimType(const omu_InterfaceObj& object);
  /// Member-wise copy.
  ///@{
  omu_PrimType(const omu_PrimType& other) = default;
  omu_PrimType& operator=(const omu_PrimType& other) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimType(const cls_ReadVisitor& reader);

  cow_String TypeString() const override;
  cow_String AsString(int level) const override;
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The kind's name.
  const cow_String& GetTypeString() const noexcept { return m_TypeString; }

  /// Exact, case-sensitive names; an unknown name gives omu_DISPLAY_UNKNOWN and a number
  /// outside 0-7 the empty text.
  static cow_String ConverTypeToString(const omu_ObjectToDisplayTypeEnm& type);
  /// The display type of a kind's name; omu_DISPLAY_UNKNOWN for a name of none.
  static omu_ObjectToDisplayTypeEnm ConverStringToType(const cow_String& name);

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(31); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_TypeString;
  cls_Uid m_TypeUid;
};

/// @}
