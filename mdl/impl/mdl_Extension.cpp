#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <mdl_Extension.h>

mdl_Extension::mdl_Extension(const cls_ReadVisitor& reader)
    : m_Name(reader.Get<cow_String>("name")), m_Uid(reader.Uid()) {}

mdl_Extension::~mdl_Extension() = default;

void mdl_Extension::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  writer.Write("name", m_Name);
}

void mdl_Extension::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_TypeAdapter<mdl_Extension>("mdl_Extension", 800, cls_RootTypeId))
      .AddAttribute({0, "name"}, cls_KIND_STRING);
}
