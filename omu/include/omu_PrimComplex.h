#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimComplex
/// A complex number; it prints as the script writes one: 1+2j, 1-2j. A '+' goes only before an
/// imaginary part that is zero or positive, so a NaN part prints 1nanj (-NaN 1-nanj) and -0
/// prints 1+-0j.
#include <omi_complex.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimComplex : public omu_PrimLeaf<omu_PrimComplex, omu_Primitive> {
public:
  /// A complex number of value.
  explicit omu_PrimComplex(const omi_complex& value = omi_complex()) noexcept
      : omu_PrimLeaf('x'), m_Value(value) {}
  /// Member-wise copy.
  ///@{
  omu_PrimComplex(const omu_PrimComplex&) = default;
  omu_PrimComplex& operator=(const omu_PrimComplex&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimComplex(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "complex"; }
  cow_String AsString(int level) const override;
  bool operator==(const omu_Primitive& other) const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The value.
  const omi_complex& Value() const noexcept { return m_Value; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(36); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  omi_complex m_Value;
  cls_Uid m_ComplexUid;
};

/// @}
