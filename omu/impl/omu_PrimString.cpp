#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_NameString.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>

omu_PrimString::omu_PrimString(const omu_PrimEnumBase& constant)
    : omu_PrimLeaf('s'), m_Text(constant.Name()) {}

omu_PrimString::omu_PrimString(int value) : omu_PrimLeaf('s'), m_Text(atr_StringBase(value)) {}

omu_PrimString::omu_PrimString(unsigned int value)
    : omu_PrimLeaf('s'), m_Text(atr_StringBase(value)) {}

omu_PrimString::omu_PrimString(double value)
    : omu_PrimLeaf('s'), m_Text(omu_PrimNumber(value).AsString(0)) {}

omu_PrimString::omu_PrimString(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Text(reader.Get<cow_String>("string")),
      m_StringUid(reader.Uid()) {}

cow_String omu_PrimString::AsString(int) const { return omu_NameString(m_Text); }

bool omu_PrimString::operator==(const omu_Primitive& other) const {
  return other.IsType('s') && static_cast<const omu_PrimString&>(other).m_Text == m_Text;
}

void omu_PrimString::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_StringUid, *this)) return;
  writer.Write("string", m_Text);
}

void omu_PrimString::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimString>("omu_PrimString", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "string"}, cls_KIND_STRING);
}
