#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimBoolean
/// The script's True and False.
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimBoolean : public omu_PrimLeaf<omu_PrimBoolean, omu_Primitive> {
public:
  explicit omu_PrimBoolean(bool value = false) noexcept : omu_PrimLeaf('b'), m_Value(value) {}
  omu_PrimBoolean(const omu_PrimBoolean&) = default;
  omu_PrimBoolean& operator=(const omu_PrimBoolean&) = default;
  explicit omu_PrimBoolean(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "Boolean"; }
  cow_String AsString(int) const override { return m_Value ? "True" : "False"; }
  /// Compares the flags; callers compare kinds first.
  bool operator==(const omu_Primitive& other) const override;
  void DBWrite(const cls_WriteVisitor& writer) const override;

  bool Value() const noexcept { return m_Value; }

  static unsigned int TypeId() noexcept { return omu_TypeId(49); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  bool m_Value;
  cls_Uid m_BooleanUid;
};

/// @}
