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
  explicit omu_PrimType(const cow_String& typeString) : omu_PrimLeaf('t'), m_TypeString(typeString) {}
  /// The type of an interface object: its own type string.
  explicit omu_PrimType(const omu_InterfaceObj& object);
  omu_PrimType(const omu_PrimType& other) = default;
  omu_PrimType& operator=(const omu_PrimType& other) = default;
  explicit omu_PrimType(const cls_ReadVisitor& reader);

  cow_String TypeString() const override;
  cow_String AsString(int level) const override;
  bool operator==(const omu_Primitive& other) const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;

  const cow_String& GetTypeString() const noexcept { return m_TypeString; }

  /// Exact, case-sensitive names; an unknown name gives omu_DISPLAY_UNKNOWN and a number
  /// outside 0-7 the empty text.
  static cow_String ConverTypeToString(const omu_ObjectToDisplayTypeEnm& type);
  static omu_ObjectToDisplayTypeEnm ConverStringToType(const cow_String& name);

  static unsigned int TypeId() noexcept { return omu_TypeId(31); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_TypeString;
  cls_Uid m_TypeUid;
};

/// @}
