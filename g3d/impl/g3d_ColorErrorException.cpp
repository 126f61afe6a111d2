#include <g3d_ColorErrorException.h>

#include <UTI_Modules.h>
#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>

g3d_ColorErrorException::g3d_ColorErrorException(const cls_ReadVisitor& reader)
    : nex_Raisable(cls_ReadVisitor(reader, nex_CommandException::TypeId())),
      m_Value(reader.Get<cow_String>("m_Value")),
      m_Uid(reader.Uid()) {}

atr_String g3d_ColorErrorException::JournalMessage() const {
  return atr_StringBase::Format("%s is not a valid color name.", m_Value.CStr());
}

void g3d_ColorErrorException::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<nex_CommandException>(TypeId(), m_Uid, *this)) return;
  writer.Write("m_Value", m_Value);
}

unsigned int g3d_ColorErrorException::TypeId() noexcept { return g3d_TypeId(3); }

void g3d_ColorErrorException::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<g3d_ColorErrorException>("g3d_ColorErrorException", 800,
                                                               nex_CommandException::TypeId()))
      .AddAttribute({0, "m_Value"}, cls_KIND_STRING);
}
