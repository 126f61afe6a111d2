#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimWrapper
/// An opaque handle on a persistent object, so that a script can hold a repository object
/// without it being turned into primitives. A wrapper either borrows the object (it must
/// outlive the wrapper) or owns it (a copy, or one read back from an archive). Copies are
/// deep: the object is copied through the persistence layer, the member dictionary with its
/// persistence identities. Wrappers are never equal.
#include <omu_PrimDictionary.h>
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>

#include <memory>

class CVX_EXPORT omu_PrimWrapper : public omu_PrimLeaf<omu_PrimWrapper, omu_Primitive> {
public:
  omu_PrimWrapper() noexcept : omu_PrimLeaf('w') {}
  /// Borrows object, which must point at the most-derived object of class objType.
  omu_PrimWrapper(const void* object, unsigned int objType);
  /// Deep: the copy owns a copy of the object, made through the persistence layer.
  ///@{
  omu_PrimWrapper(const omu_PrimWrapper& other);
  omu_PrimWrapper& operator=(const omu_PrimWrapper& other);
  ///@}
  /// Reads the object back from the record reader is at.
  explicit omu_PrimWrapper(const cls_ReadVisitor& reader);

  cow_String TypeString() const override { return "Wrapper"; }
  cow_String AsString(int) const override { return "Wrapper"; }
  bool operator==(const omu_Primitive&) const override { return false; }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The wrapped object; null for an empty wrapper.
  const void* Object() const noexcept { return m_Object.get(); }
  /// The wrapped object's type identifier.
  unsigned int ObjType() const noexcept { return m_ObjType; }
  /// True when the wrapper owns the object rather than borrows it.
  bool OwnsObject() const noexcept { return m_Owned; }
  /// The members a script set on the wrapped object, by name.
  const omu_PrimDictionary<cow_String>& MemberDict() const noexcept { return m_MemberDict; }
  /// The same, for change.
  omu_PrimDictionary<cow_String>& MemberDict() noexcept { return m_MemberDict; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(30); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  void Own(void* object);

  unsigned int m_ObjType = 0;
  std::shared_ptr<const void> m_Object;
  bool m_Owned = false;
  omu_PrimDictionary<cow_String> m_MemberDict;
  cls_Uid m_WrapperUid;
};

/// @}
