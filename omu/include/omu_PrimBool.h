#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimBool
/// The boolean symbolic constants. N picks the spelling, and with it the class and type id:
/// \code{.unparsed}
///   omu_PrimBool<2>  ON / OFF       "omu_OnOffConst"      19:37
///   omu_PrimBool<3>  TRUE / FALSE   "omu_TrueFalseConst"  19:38
///   omu_PrimBool<4>  YES / NO       "omu_YesNoConst"      19:39
/// \endcode
/// Each is an omu_PrimEnum<bool, N> whose table (omu_PrimEnumTable<bool, N>) lists the true
/// name first, so a constant built from true takes that name.
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimEnum.h>

/// ON / OFF.
template <>
struct omu_PrimEnumTable<bool, 2> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};
/// TRUE / FALSE.
template <>
struct omu_PrimEnumTable<bool, 3> {
  /// The enumeration's names and values, ended by a row with a null name.
  static CVX_EXPORT const omu_PrimEnumRow* Rows() noexcept;
};
/// YES / NO.
template <>
struct omu_PrimEnumTable<bool, 4> {
  /// The enumeration's names and values, ended by a row with a null name.
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
  /// The constant of value.
  explicit omu_PrimBool(bool value = false) : Leaf(value) {}
  /// The constant of name, which must be one of the two spellings (else omu_ValueErrorException).
  explicit omu_PrimBool(const cow_String& name) : Leaf(name) {}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimBool(const cls_ReadVisitor& reader)
      : Leaf(cls_ReadVisitor(reader, omu_PrimEnumBase::TypeId())), m_BoolUid(reader.Uid()) {}
  /// Member-wise copy.
  ///@{
  omu_PrimBool(const omu_PrimBool&) = default;
  omu_PrimBool& operator=(const omu_PrimBool&) = default;
  ///@}

  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override {
    writer.template StartLevel<omu_PrimEnumBase>(TypeId(), m_BoolUid, *this);
  }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(35 + N); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar) {
    registrar.AddClassMD(new cls_TypeAdapter<omu_PrimBool>(omu_PrimBoolClassName(N), 800,
                                                           omu_PrimEnumBase::TypeId()));
  }

private:
  cls_Uid m_BoolUid;
};

/// ON / OFF.
using omu_OnOffConst = omu_PrimBool<2>;
/// TRUE / FALSE.
using omu_TrueFalseConst = omu_PrimBool<3>;
/// YES / NO.
using omu_YesNoConst = omu_PrimBool<4>;

/// Registers the three constant classes, on/off first (one entry of the module's list).
CVX_EXPORT void omu_InitializeBoolConstants(cls_ClassRegistrar& registrar);

/// @}
