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
  explicit mdl_Repository(const cow_String& name) : mdl_Extension(name) {}
  explicit mdl_Repository(const cls_ReadVisitor& reader);

  unsigned int DynTypeId() const override { return TypeId(); }
  void DBWrite(const cls_WriteVisitor& writer) const override;

  const cow_List<cow_String>& Keys() const noexcept { return m_Keys; }
  /// Adds a key once; answers whether it was new.
  bool AddKey(const cow_String& key);
  bool operator==(const mdl_Repository& other) const {
    return mdl_Extension::operator==(other) && m_Keys == other.m_Keys;
  }

  static unsigned int TypeId() noexcept { return mdl_TypeId(1); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_List<cow_String> m_Keys;
  cls_Uid m_RepositoryUid;
};

/// @}
