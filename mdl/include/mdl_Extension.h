#pragma once
/// \addtogroup mdl
/// @{

/// \class mdl_Extension
/// A named extension of a model object: the unit by which add-on data is attached and
/// persisted. Persisted as "name".
#include <CVX_Export.h>
#include <UTI_Modules.h>
#include <cls_Uid.h>
#include <cow_String.h>

class cls_ClassRegistrar;
class cls_ReadVisitor;
class cls_WriteVisitor;

class CVX_EXPORT mdl_Extension {
public:
  mdl_Extension() = default;
  explicit mdl_Extension(const cow_String& name) : m_Name(name) {}
  explicit mdl_Extension(const cls_ReadVisitor& reader);
  mdl_Extension(const mdl_Extension&) = default;
  mdl_Extension& operator=(const mdl_Extension&) = default;
  virtual ~mdl_Extension();

  virtual unsigned int DynTypeId() const { return TypeId(); }
  virtual void DBWrite(const cls_WriteVisitor& writer) const;

  const cow_String& Name() const noexcept { return m_Name; }
  bool operator==(const mdl_Extension& other) const { return m_Name == other.m_Name; }

  static unsigned int TypeId() noexcept { return mdl_TypeId(13); }
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_Name;
  cls_Uid m_Uid;
};

/// @}
