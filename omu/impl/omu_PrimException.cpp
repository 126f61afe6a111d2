#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimException.h>

namespace {
std::unique_ptr<nex_Exception> Clone(const nex_Exception* exception) {
  return std::unique_ptr<nex_Exception>(exception ? exception->Copy() : nullptr);
}
}  // namespace

omu_PrimException::omu_PrimException(const nex_Exception& exception, const cow_String& traceback)
    : omu_PrimLeaf('E'), m_Exception(Clone(&exception)), m_Traceback(traceback) {}

omu_PrimException::omu_PrimException(const omu_PrimException& other)
    : omu_PrimLeaf(other),
      m_Exception(Clone(other.m_Exception.get())),
      m_Traceback(other.m_Traceback),
      m_ExceptionUid(other.m_ExceptionUid) {}

omu_PrimException& omu_PrimException::operator=(const omu_PrimException& other) {
  if (this != &other) {
    m_Exception = Clone(other.m_Exception.get());
    omu_Primitive::operator=(other);
    m_Traceback = other.m_Traceback;
    m_ExceptionUid = other.m_ExceptionUid;
  }
  return *this;
}

omu_PrimException::omu_PrimException(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Traceback(reader.Get<cow_String>("m_Traceback")),
      m_ExceptionUid(reader.Uid()) {}

void omu_PrimException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_ExceptionUid, *this)) return;
  writer.Write("m_Traceback", m_Traceback);
}

void omu_PrimException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  // Ordinal 0, the exception itself, is not persisted.
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimException>("omu_PrimException", 800, omu_Primitive::TypeId()))
      .AddAttribute({1, "m_Traceback"}, cls_KIND_STRING);
}
