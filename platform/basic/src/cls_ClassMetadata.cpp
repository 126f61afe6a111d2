#include <cls_ClassMetadata.h>
#include <nex_TextException.h>

namespace {
[[noreturn]] void Abstract(const cow_String& name, const char* what) {
  NEX_THROW(nex_TextException(
                atr_StringBase::Format("class %s is abstract: it cannot %s", name.CStr(), what)),
            "cls/impl/cls_ClassMetadata");
}
}  // namespace

cls_ClassMetadata::cls_ClassMetadata(const cow_String& name, unsigned int typeId,
                                     unsigned int metadataWord, unsigned int parentTypeId,
                                     unsigned int extra)
    : m_Name(name),
      m_TypeId(typeId),
      m_MetadataWord(metadataWord),
      m_ParentTypeId(parentTypeId),
      m_Extra(extra) {}

cls_ClassMetadata::~cls_ClassMetadata() = default;

cls_ClassMetadata& cls_ClassMetadata::AddAttribute(const cls_AttributeName& name, int kind,
                                                   unsigned int typeArgument, unsigned int flags) {
  m_Attributes.push_back({name.ordinal, name.name, kind, typeArgument, flags});
  return *this;
}

cls_ClassMetadata& cls_ClassMetadata::AddDtor(Destructor destructor) {
  m_Dtor = destructor;
  return *this;
}

void* cls_ClassMetadata::Construct(const cls_ReadVisitor&) const { Abstract(m_Name, "be read"); }

void* cls_ClassMetadata::Clone(const void*) const { Abstract(m_Name, "be copied"); }

void cls_ClassMetadata::Write(const void*, const cls_WriteVisitor&) const {
  Abstract(m_Name, "be written");
}

void cls_ClassMetadata::Destroy(void* object) const noexcept {
  if (m_Dtor) m_Dtor(object);
}
