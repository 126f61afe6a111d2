#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimNone
/// The script's None. A None read back from an archive may be "set"; every other None,
/// copies included, is unset.
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimNone : public omu_PrimLeaf<omu_PrimNone, omu_Primitive> {
public:
  omu_PrimNone() noexcept : omu_PrimLeaf('n') {}
  /// A copy is an unset None.
  omu_PrimNone(const omu_PrimNone& other) noexcept : omu_PrimLeaf(other) {}
  /// Like a copy, an assigned None is unset.
  omu_PrimNone& operator=(const omu_PrimNone& other) noexcept {
    omu_Primitive::operator=(other);
    m_IsSet = false;
    return *this;
  }
  /// Reads the object back from the record reader is at.
  explicit omu_PrimNone(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "None"; }
  cow_String AsString(int) const override { return "None"; }
  /// Compares the set flags only; callers compare kinds first (another kind is unequal).
  bool operator==(const omu_Primitive& other) const override;
  omu_Primitive* Copy() const override { return new omu_PrimNone(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// True only for a set None read back from an archive.
  bool IsSet() const noexcept { return m_IsSet; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(29); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  bool m_IsSet = false;
  cls_Uid m_NoneUid;
};

/// @}
