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
  omu_PrimNone(const omu_PrimNone& other) noexcept : omu_PrimLeaf(other) {}
  /// Like a copy, an assigned None is unset.
  omu_PrimNone& operator=(const omu_PrimNone& other) noexcept {
    omu_Primitive::operator=(other);
    m_IsSet = false;
    return *this;
  }
  explicit omu_PrimNone(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "None"; }
  cow_String AsString(int) const override { return "None"; }
  /// Compares the set flags only; callers compare kinds first (another kind is unequal).
  bool operator==(const omu_Primitive& other) const override;
  omu_Primitive* Copy() const override { return new omu_PrimNone(); }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  bool IsSet() const noexcept { return m_IsSet; }

  static unsigned int TypeId() noexcept { return omu_TypeId(29); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  bool m_IsSet = false;
  cls_Uid m_NoneUid;
};

/// @}
