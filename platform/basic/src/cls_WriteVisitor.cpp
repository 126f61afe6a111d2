#include <cls_Archive.h>
#include <cls_MetadataRegistrar.h>
#include <cls_WriteVisitor.h>
#include <nex_AssertException.h>
#include <nex_TextException.h>

namespace {
constexpr const char* kSource = "cls/impl/cls_WriteVisitor";
}

cls_WriteVisitor::cls_WriteVisitor(cls_Archive& archive)
    : m_Archive(&archive),
      m_Slot(archive.m_Roots.emplace_back(std::make_unique<cls_Value>()).get()),
      m_ExpectedTypeId(0) {}

cls_WriteVisitor::cls_WriteVisitor(const cls_WriteVisitor& outer, unsigned int parentTypeId)
    : m_Archive(outer.m_Archive),
      m_Slot(&outer.Current().parent),
      m_ExpectedTypeId(parentTypeId),
      m_Depth(outer.m_Depth + 1) {}

bool cls_WriteVisitor::StartWrite(unsigned int typeId, const cls_Uid& uid) const {
  NEX_ASSERT(m_Current == nullptr, kSource);
  NEX_ASSERT(m_ExpectedTypeId == 0 || m_ExpectedTypeId == typeId, kSource);
  if (m_Depth > cls_Archive::MaxDepth) {
    NEX_THROW(nex_TextException("archive: objects nest too deeply to be read back (an object "
                                "that writes itself?)"),
              kSource);
  }
  auto record = std::make_shared<cls_Record>();
  record->typeId = typeId;
  record->uid = uid;
  m_Current = record.get();
  *m_Slot = std::move(record);
  return true;
}

cls_Record& cls_WriteVisitor::Current() const {
  NEX_ASSERT(m_Current != nullptr, kSource);
  return *m_Current;
}

unsigned int cls_WriteVisitor::CurrentTypeId() const noexcept {
  return m_Current ? m_Current->typeId : 0;
}

void cls_WriteVisitor::Write(const char* name, cls_Value value) const {
  Current().fields.emplace_back(cow_String(name), std::move(value));
}

void cls_WriteVisitor::Write(const char* name, const atr_StringBase& text) const {
  Write(name, cls_Value(cow_String(text)));
}

void cls_WriteVisitor::Write(const char* name, const char* text) const {
  Write(name, cls_Value(cow_String(text)));
}

void cls_WriteVisitor::WriteEnum(const char* name, const cow_String& enumeratorName) const {
  Write(name, cls_Value(cls_EnumName{enumeratorName}));
}

void cls_WriteVisitor::WriteValue(cls_Value value) const {
  NEX_ASSERT(m_Current == nullptr, kSource);
  *m_Slot = std::move(value);
}

void cls_WriteVisitor::WriteObject(const char* name, unsigned int typeId,
                                   const void* object) const {
  if (!object) {
    Write(name, cls_Value());
    return;
  }
  cls_MetadataRegistrar::Instance().Registrar().Get(typeId).Write(object, Field(name));
}

cls_WriteVisitor cls_WriteVisitor::Field(const char* name) const {
  auto& fields = Current().fields;
  fields.emplace_back(cow_String(name), cls_Value());
  return cls_WriteVisitor(*this, &fields.back().second, 1);
}

cls_Value::List& cls_WriteVisitor::BeginList(const char* name, int count) const {
  auto& fields = Current().fields;
  fields.emplace_back(cow_String(name), cls_Value(cls_Value::List()));
  auto& items = std::get<cls_Value::List>(fields.back().second.GetData());
  items.reserve(count < 0 ? 0 : static_cast<std::size_t>(count));  // keeps item slots in place
  return items;
}

cls_WriteVisitor cls_WriteVisitor::Item(cls_Value::List& items) const {
  NEX_ASSERT(items.size() < items.capacity(), kSource);
  items.emplace_back();
  return cls_WriteVisitor(*this, &items.back(), 2);  // in the list, in the record
}
