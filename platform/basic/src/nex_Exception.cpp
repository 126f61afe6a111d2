#include <cls_AbsTypeAdapter.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_WriteVisitor.h>
#include <nex_Exception.h>

nex_Exception::~nex_Exception() = default;

nex_Exception::nex_Exception(const cls_ReadVisitor& reader) : m_Uid(reader.Uid()) {}

atr_String nex_Exception::DeveloperReport() const {
  atr_String report = AsString();
  if (m_SourceLine > 0) {
    report += atr_StringBase::Format(" [%s:%d]", m_SourcePath, m_SourceLine);
  }
  return report;
}

atr_String nex_Exception::UserReport() const { return AsString(); }

unsigned int nex_Exception::DynTypeId() const { return TypeId(); }

void nex_Exception::DBWrite(const cls_WriteVisitor& writer) const {
  writer.StartWrite(TypeId(), m_Uid);
}

const char* nex_Exception::what() const noexcept {
  return m_What.IsEmpty() ? "nex_Exception" : m_What.CStr();
}

void nex_Exception::SetSource(const char* path, int line) noexcept {
  m_SourcePath = path ? path : "";
  m_SourceLine = line;
  m_What = atr_String();
  FixReport();
}

void nex_Exception::FixReport() noexcept {
  if (!m_What.IsEmpty()) return;
  try {
    m_What = DeveloperReport();
  } catch (...) {  // out of memory: what() falls back to the class name
  }
}

unsigned int nex_Exception::TypeId() noexcept { return cls_MakeTypeId(cls_ExceptionModule, 1); }

void nex_Exception::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_AbsTypeAdapter<nex_Exception>("nex_Exception", 800, cls_RootTypeId));
}
