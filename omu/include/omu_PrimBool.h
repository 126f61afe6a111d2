#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimBool
/// The boolean symbolic constants. N picks the spelling, and with it the class and type id:
///   omu_PrimBool<2>  ON / OFF       "omu_OnOffConst"      19:37
///   omu_PrimBool<3>  TRUE / FALSE   "omu_TrueFalseConst"  19:38
///   omu_PrimBool<4>  YES / NO       "omu_YesNoConst"      19:39
/// Each is an omu_PrimEnum<bool, N> whose table (omu_PrimEnumTable<bool, N>) lists the true
/// name first, so a constant built from true takes that name.
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimEnum.h>

template <>
struct omu_PrimEnumTable<bool, 2> {
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};
template <>
struct omu_PrimEnumTable<bool, 3> {
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};
template <>
struct omu_PrimEnumTable<bool, 4> {
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};

/// The registration names of the three constant classes, by N.
CVX_EXPORT const char* omu_PrimBoolClassName(int n) noexcept;

template <int N>
class omu_PrimBool : public omu_PrimLeaf<omu_PrimBool<N>, omu_PrimEnum<bool, N>> {
  static_assert(N >= 2 && N <= 4, "the boolean constants are omu_PrimBool<2>, <3> and <4>");
  using Enum = omu_PrimEnum<bool, N>;
  using Leaf = omu_PrimLeaf<omu_PrimBool<N>, Enum>;

public:
  explicit omu_PrimBool(bool value = false) : Leaf(value) {}
  explicit omu_PrimBool(const cow_String& name) : Leaf(name) {}
  explicit omu_PrimBool(const cls_ReadVisitor& reader)
      : Leaf(cls_ReadVisitor(reader, omu_PrimEnumBase::TypeId())), m_BoolUid(reader.Uid()) {}
  omu_PrimBool(const omu_PrimBool&) = default;
  omu_PrimBool& operator=(const omu_PrimBool&) = default;

  void DBWrite(const cls_WriteVisitor& writer) const override {
    writer.template StartLevel<omu_PrimEnumBase>(TypeId(), m_BoolUid, *this);
  }

  static unsigned int TypeId() noexcept { return omu_TypeId(35 + N); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    registrar.AddClassMD(new cls_TypeAdapter<omu_PrimBool>(omu_PrimBoolClassName(N), 800,
                                                           omu_PrimEnumBase::TypeId()));
  }

private:
  cls_Uid m_BoolUid;
};

using omu_OnOffConst = omu_PrimBool<2>;
using omu_TrueFalseConst = omu_PrimBool<3>;
using omu_YesNoConst = omu_PrimBool<4>;

/// Registers the three constant classes, on/off first (one entry of the module's list).
CVX_EXPORT void omu_InitializeBoolConstants(cls_ClassRegistrar& registrar);

/// @}
