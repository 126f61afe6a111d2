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
  /// An extension called name.
  explicit mdl_Extension(const cow_String& name) : m_Name(name) {}
  /// Reads the object back from the record reader is at.
  explicit mdl_Extension(const cls_ReadVisitor& reader);
  /// Member-wise copy.
  ///@{
  mdl_Extension(const mdl_Extension&) = default;
  mdl_Extension& operator=(const mdl_Extension&) = default;
  ///@}
  virtual ~mdl_Extension();

  /// The type identifier of the most-derived class.
  virtual unsigned int DynTypeId() const { return TypeId(); }
  /// Writes the object through writer: its class level, and its parent classes' levels within it.
  virtual void DBWrite(const cls_WriteVisitor& writer) const;

  /// The name.
  const cow_String& Name() const noexcept { return m_Name; }
  /// Same name.
  bool operator==(const mdl_Extension& other) const { return m_Name == other.m_Name; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return mdl_TypeId(13); }
  /// Registers the class (name, version, parent) with registrar, so archives can read it back.
  static void InitializeMetadata(cls_ClassRegistrar& registrar);

private:
  cow_String m_Name;
  cls_Uid m_Uid;
};

/// @}
