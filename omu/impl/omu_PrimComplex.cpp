#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimComplex.h>

omu_PrimComplex::omu_PrimComplex(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Value(reader.Get<double>("complexNumRe"), reader.Get<double>("complexNumIm")),
      m_ComplexUid(reader.Uid()) {}

cow_String omu_PrimComplex::AsString(int) const {
  const double imag = m_Value.Imag();
  cow_String text(atr_StringBase(m_Value.Real()));
  // Only a zero or positive part takes a '+': NaN takes none, and -0 keeps its '+'.
  if (imag >= 0.0) text += '+';
  text += atr_StringBase(imag);
  text += 'j';
  return text;
}

bool omu_PrimComplex::operator==(const omu_Primitive& other) const {
  return other.IsType('x') && static_cast<const omu_PrimComplex&>(other).m_Value == m_Value;
}

void omu_PrimComplex::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_ComplexUid, *this)) return;
  writer.Write("complexNumRe", m_Value.Real());
  writer.Write("complexNumIm", m_Value.Imag());
}

void omu_PrimComplex::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimComplex>("omu_PrimComplex", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "complexNumRe"}, cls_KIND_DOUBLE)
      .AddAttribute({1, "complexNumIm"}, cls_KIND_DOUBLE);
}
