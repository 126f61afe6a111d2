#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <mdl_Repository.h>

mdl_Repository::mdl_Repository(const cls_ReadVisitor& reader)
    : mdl_Extension(cls_ReadVisitor(reader, mdl_Extension::TypeId())) {
  for (const cls_Value& key : reader.ReadList("keys")) {
    const auto* text = key.As<cow_String>();
    if (!text) reader.Fail("field 'keys' holds something other than texts");
    m_Keys.Append(*text);
  }
  m_RepositoryUid = reader.Uid();
}

bool mdl_Repository::AddKey(const cow_String& key) {
  if (m_Keys.Contains(key)) return false;
  m_Keys.Append(key);
  return true;
}

void mdl_Repository::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<mdl_Extension>(TypeId(), m_RepositoryUid, *this)) return;
  writer.Write("keys", cls_Value::List(m_Keys.begin(), m_Keys.end()));
}

void mdl_Repository::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<mdl_Repository>("mdl_Repository", 800, mdl_Extension::TypeId()))
      .AddAttribute({0, "keys"}, cls_KIND_LIST);
}
