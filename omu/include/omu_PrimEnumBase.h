#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimEnumBase
/// An enumerated value as it crosses the scripting boundary and is persisted: by its
/// symbolic name, not its number. The base holds only the name; omu_PrimEnum<E, N> binds it
/// to a native enumeration through a table of permissible names.
#include <cow_Map.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

class CVX_EXPORT omu_PrimEnumBase : public omu_PrimLeaf<omu_PrimEnumBase, omu_Primitive> {
public:
  omu_PrimEnumBase() noexcept : omu_PrimLeaf('c') {}
  /// A value of that name; the base accepts any.
  explicit omu_PrimEnumBase(const cow_String& name) : omu_PrimLeaf('c'), m_Name(name) {}
  /// Member-wise copy.
  ///@{
  omu_PrimEnumBase(const omu_PrimEnumBase&) = default;
  omu_PrimEnumBase& operator=(const omu_PrimEnumBase&) = default;
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimEnumBase(const cls_ReadVisitor& reader);

  /// The name, or the empty text when none is set.
  const char* GetString() const noexcept { return m_Name.CStr(); }
  /// The name.
  const cow_String& Name() const noexcept { return m_Name; }
  /// The bare name, unquoted, at every level.
  cow_String AsString(int) const override { return m_Name; }
  /// The base accepts any name.
  virtual bool SetValue(const char* name);
  /// Equal to any enumeration value of the same name (case-sensitive).
  bool operator==(const omu_Primitive& other) const override;
  /// The permissible names and their values; the base has none.
  virtual cow_Map<cow_String, unsigned int> PermissibleValues() const;
  /// "{NAME: value, ...}" in name order; "{}" when there are none.
  cow_String PermissibleValuesAsString() const;
  /// The permissible names for messages: "A, B or C".
  cow_String TypeString() const override;
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(27); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

protected:
  /// Stores name without a check.
  void SetName(const cow_String& name) { m_Name = name; }

private:
  cow_String m_Name;
  cls_Uid m_EnumUid;
};

/// @}
