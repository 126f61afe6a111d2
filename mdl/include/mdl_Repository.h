#pragma once
/// \addtogroup mdl
/// @{

/// \class mdl_Repository
/// An extension that keeps the keys of the objects it holds, in the order they were added.
/// Persisted as "keys" after the extension's own record.
#include <cow_List.h>
#include <mdl_Extension.h>

class CVX_EXPORT mdl_Repository : public mdl_Extension {
public:
  mdl_Repository() = default;
  /// An empty repository called name.
  explicit mdl_Repository(const cow_String& name) : mdl_Extension(name) {}
  /// Reads the object back from the record reader is at.
  explicit mdl_Repository(const cls_ReadVisitor& reader);

  /// TypeId().
  unsigned int DynTypeId() const override { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  void DBWrite(const cls_WriteVisitor& writer) const override;

  /// The keys, in the order added.
  const cow_List<cow_String>& Keys() const noexcept { return m_Keys; }
  /// Adds a key once; answers whether it was new.
  bool AddKey(const cow_String& key);
  /// Same name and keys.
  bool operator==(const mdl_Repository& other) const {
    return mdl_Extension::operator==(other) && m_Keys == other.m_Keys;
  }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return mdl_TypeId(1); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_List<cow_String> m_Keys;
  cls_Uid m_RepositoryUid;
};

/// @}
