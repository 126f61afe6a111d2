#pragma once
/// \addtogroup basic
/// @{

/// \class cls_ClassMetadata
/// What the registry knows of one class: identity, name, parent, metadata word, persisted
/// attributes, and (through the type adapters) how to build, copy, write and destroy one.
/// Objects are handled untyped here: a void* must point at the most-derived object.
#include <BASIC_Export.h>
#include <cls_Attribute.h>

#include <vector>

class cls_ReadVisitor;
class cls_WriteVisitor;

class BASIC_EXPORT cls_ClassMetadata {
public:
  /// Destroys an object of the class, given untyped.
  using Destructor = void (*)(void*);

  /// The class name registered under typeId, its metadata word (a version) and parent; extra is
  /// kept for the owner.
  cls_ClassMetadata(const cow_String& name, unsigned int typeId, unsigned int metadataWord,
                    unsigned int parentTypeId, unsigned int extra = 0);
  /// Not copyable.
  ///@{
  cls_ClassMetadata(const cls_ClassMetadata&) = delete;
  cls_ClassMetadata& operator=(const cls_ClassMetadata&) = delete;
  ///@}
  virtual ~cls_ClassMetadata();

  /// Describes one persisted field (see cls_Attribute); answers this metadata, for chaining.
  cls_ClassMetadata& AddAttribute(const cls_AttributeName& name, int kind,
                                  unsigned int typeArgument = 1, unsigned int flags = 0);
  /// Sets the destructor Destroy uses; answers this metadata.
  cls_ClassMetadata& AddDtor(Destructor destructor);

  /// As given at construction.
  ///@{
  const cow_String& Name() const noexcept { return m_Name; }
  unsigned int TypeId() const noexcept { return m_TypeId; }
  unsigned int MetadataWord() const noexcept { return m_MetadataWord; }
  unsigned int ParentTypeId() const noexcept { return m_ParentTypeId; }
  unsigned int Extra() const noexcept { return m_Extra; }
  const std::vector<cls_Attribute>& Attributes() const noexcept { return m_Attributes; }
  Destructor Dtor() const noexcept { return m_Dtor; }
  ///@}

  /// Abstract classes have no factory: Construct and Clone raise nex_TextException.
  virtual bool IsAbstract() const noexcept { return true; }
  /// A new object read from reader's record, owned by the caller (destroy it with Destroy).
  virtual void* Construct(const cls_ReadVisitor& reader) const;
  /// A new copy of object, owned by the caller.
  virtual void* Clone(const void* object) const;
  /// Writes object through writer; an abstract class raises nex_TextException.
  virtual void Write(const void* object, const cls_WriteVisitor& writer) const;
  /// Destroys object through the destructor AddDtor set; without one it does nothing.
  virtual void Destroy(void* object) const noexcept;

private:
  cow_String m_Name;
  unsigned int m_TypeId;
  unsigned int m_MetadataWord;
  unsigned int m_ParentTypeId;
  unsigned int m_Extra;
  std::vector<cls_Attribute> m_Attributes;
  Destructor m_Dtor = nullptr;
};

/// @}
