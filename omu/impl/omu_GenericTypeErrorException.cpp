#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_GenericTypeErrorException.h>

omu_GenericTypeErrorException::omu_GenericTypeErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, omu_TypeErrorException::TypeId())),
      m_Uid(reader.Uid()) {}

void omu_GenericTypeErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  writer.StartLevel<omu_TypeErrorException>(TypeId(), m_Uid, *this);
}

void omu_GenericTypeErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_TypeAdapter<omu_GenericTypeErrorException>(
      "omu_GenericTypeErrorException", 800, omu_TypeErrorException::TypeId()));
}
