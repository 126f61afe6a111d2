#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimBoolean
/// The script's True and False.
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimBoolean : public omu_PrimLeaf<omu_PrimBoolean, omu_Primitive> {
public:
  /// A Boolean of value.
  explicit omu_PrimBoolean(bool value = false) noexcept : omu_PrimLeaf('b'), m_Value(value) {}
  /// Member-wise copy.
  ///@{
  omu_PrimBoolean(const omu_PrimBoolean&) = default;
  omu_PrimBoolean& operator=(const omu_PrimBoolean&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimBoolean(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "Boolean"; }
  cow_String AsString(int) const override { return m_Value ? "True" : "False"; }
  /// Compares the flags; callers compare kinds first.
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The value.
  bool Value() const noexcept { return m_Value; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(49); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  bool m_Value;
  cls_Uid m_BooleanUid;
};

/// @}
