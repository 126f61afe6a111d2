#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_IndexErrorException.h>

omu_IndexErrorException::omu_IndexErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, nex_CommandException::TypeId())),
      m_Value(reader.Get<int>("m_Value")),
      m_Uid(reader.Uid()) {}

void omu_IndexErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<nex_CommandException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_Value", m_Value);
}

void omu_IndexErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_IndexErrorException>("omu_IndexErrorException", 800,
                                                               nex_CommandException::TypeId()))
      .AddAttribute({0, "m_Value"}, cls_KIND_INT);
}
