#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>
#include <omu_TypeErrorException.h>

omu_TypeErrorException::omu_TypeErrorException(const cls_ReadVisitor& reader)
    : nex_CommandException(cls_ReadVisitor(reader, nex_CommandException::TypeId())),
      m_TypeErrorUid(reader.Uid()) {}

void omu_TypeErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  writer.StartLevel<nex_CommandException>(TypeId(), m_TypeErrorUid, *this);
}

void omu_TypeErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_AbsTypeAdapter<omu_TypeErrorException>(
      "omu_TypeErrorException", 800, nex_CommandException::TypeId()));
}
