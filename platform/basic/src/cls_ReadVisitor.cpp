#include <cls_Archive.h>
#include <cls_MetadataRegistrar.h>
#include <cls_ReadVisitor.h>
#include <nex_TextException.h>
#include <typ_ArchCompTable.h>

namespace {
const cls_ClassRegistrar& Registry() { return cls_MetadataRegistrar::Instance().Registrar(); }

cow_String ClassLabel(unsigned int typeId) {
  if (const cls_ClassMetadata* metadata = Registry().Find(typeId)) return metadata->Name();
  return atr_StringBase::Format("0x%x", typeId);
}
}  // namespace

cls_ReadVisitor::cls_ReadVisitor(const cls_ReadVisitor& outer, const cls_Record& record)
    : m_Archive(outer.m_Archive), m_Record(&record), m_Depth(outer.m_Depth + 1) {
  if (m_Depth > cls_Archive::MaxDepth) outer.Fail("objects nest too deeply (a cyclic reference?)");
}

cls_ReadVisitor::cls_ReadVisitor(const cls_ReadVisitor& outer, unsigned int parentTypeId)
    : cls_ReadVisitor(outer.Nested(outer.m_Record->parent)) {
  if (m_Record->typeId != parentTypeId) {
    outer.Fail(atr_StringBase::Format("its parent level is %s, expected %s",
                                      ClassLabel(m_Record->typeId).CStr(),
                                      ClassLabel(parentTypeId).CStr())
                   .CStr());
  }
}

void cls_ReadVisitor::Fail(const char* what) const {
  NEX_THROW(nex_TextException(atr_StringBase::Format(
                "archive record %s (uid %llu): %s", ClassLabel(m_Record->typeId).CStr(),
                static_cast<unsigned long long>(m_Record->uid.Value()), what)),
            "cls/impl/cls_ReadVisitor");
}

const cls_Value& cls_ReadVisitor::Field(const char* name) const {
  if (const cls_Value* value = m_Record->Find(name)) return *value;
  Fail(atr_StringBase::Format("it has no field '%s'", name).CStr());
}

template <class T>
const T& cls_ReadVisitor::Expect(const char* name, cls_Value::Kind kind) const {
  const cls_Value& value = Field(name);
  if (const T* typed = value.As<T>()) return *typed;
  Fail(atr_StringBase::Format("field '%s' holds %s, expected %s", name,
                              cls_Value::KindName(value.GetKind()), cls_Value::KindName(kind))
           .CStr());
}

void cls_ReadVisitor::Read(const char* name, bool& value) const {
  value = Expect<bool>(name, cls_Value::BOOL);
}
void cls_ReadVisitor::Read(const char* name, char& value) const {
  value = Expect<char>(name, cls_Value::CHAR);
}
void cls_ReadVisitor::Read(const char* name, int& value) const {
  value = Expect<std::int32_t>(name, cls_Value::INT);
}
void cls_ReadVisitor::Read(const char* name, unsigned int& value) const {
  value = Expect<std::uint32_t>(name, cls_Value::UINT);
}
void cls_ReadVisitor::Read(const char* name, long long& value) const {
  value = Expect<std::int64_t>(name, cls_Value::INT64);
}
void cls_ReadVisitor::Read(const char* name, float& value) const {
  value = Expect<float>(name, cls_Value::FLOAT);
}
void cls_ReadVisitor::Read(const char* name, double& value) const {
  value = Expect<double>(name, cls_Value::DOUBLE);
}
void cls_ReadVisitor::Read(const char* name, cow_String& value) const {
  value = Expect<cow_String>(name, cls_Value::TEXT);
}
void cls_ReadVisitor::Read(const char* name, atr_String& value) const {
  value = Expect<cow_String>(name, cls_Value::TEXT);
}

cow_String cls_ReadVisitor::ReadEnum(const char* name) const {
  return Expect<cls_EnumName>(name, cls_Value::ENUM).name;
}

const cls_Value::List& cls_ReadVisitor::ReadList(const char* name) const {
  return Expect<cls_Value::List>(name, cls_Value::LIST);
}

cls_ReadVisitor cls_ReadVisitor::Nested(const cls_Value& value) const {
  if (const auto* record = value.As<std::shared_ptr<cls_Record>>()) {
    return {*this, **record};
  }
  if (const auto* ref = value.As<cls_Ref>()) {
    if (const cls_Record* target = m_Archive->FindUid(ref->uid)) return {*this, *target};
    Fail(atr_StringBase::Format("it refers to uid %llu, which no record has",
                                static_cast<unsigned long long>(ref->uid.Value()))
             .CStr());
  }
  Fail(atr_StringBase::Format("an object was expected, found %s",
                              cls_Value::KindName(value.GetKind()))
           .CStr());
}

void* cls_ReadVisitor::Construct(const cls_Value& value, unsigned int baseTypeId,
                                 unsigned int& typeId) const {
  typeId = 0;
  if (value.GetKind() == cls_Value::NONE) return nullptr;
  const cls_ReadVisitor reader = Nested(value);
  const cls_ClassMetadata* metadata = Registry().Find(reader.TypeId());
  if (!metadata) reader.Fail("its class is not registered");
  if (!Registry().IsA(reader.TypeId(), baseTypeId)) {
    reader.Fail(atr_StringBase::Format("an object of class %s was expected here",
                                       ClassLabel(baseTypeId).CStr())
                    .CStr());
  }
  if (metadata->IsAbstract()) reader.Fail("its class is abstract");
  void* object = metadata->Construct(reader);
  typeId = reader.TypeId();
  return object;
}
