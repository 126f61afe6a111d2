#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_QueryPathMsg.h>

omu_QueryPathMsg::omu_QueryPathMsg(const cls_ReadVisitor& reader)
    : m_Path(reader.Get<cow_String>("path")),
      m_Message(reader.Get<cow_String>("message")),
      m_Uid(reader.Uid()) {}

void omu_QueryPathMsg::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  writer.Write("path", m_Path);
  writer.Write("message", m_Message);
}

void omu_QueryPathMsg::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_QueryPathMsg>("omu_QueryPathMsg", 800, cls_RootTypeId))
      .AddAttribute({0, "path"}, cls_KIND_STRING)
      .AddAttribute({1, "message"}, cls_KIND_STRING);
}
