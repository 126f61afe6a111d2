#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_NameString.h>
#include <omu_PrimTranslatedString.h>

omu_PrimTranslatedString::omu_PrimTranslatedString(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Text(reader.Get<atr_String>("string"), true),
      m_TranslatedUid(reader.Uid()) {}

cow_String omu_PrimTranslatedString::AsString(int) const { return omu_NameString(m_Text); }

bool omu_PrimTranslatedString::operator==(const omu_Primitive& other) const {
  return other.IsType('l') && static_cast<const omu_PrimTranslatedString&>(other).m_Text == m_Text;
}

void omu_PrimTranslatedString::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_TranslatedUid, *this)) return;
  writer.Write("string", m_Text);
}

void omu_PrimTranslatedString::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimTranslatedString>("omu_PrimTranslatedString", 800,
                                                                omu_Primitive::TypeId()))
      .AddAttribute({0, "string"}, cls_KIND_TRANSLATABLE);
}
