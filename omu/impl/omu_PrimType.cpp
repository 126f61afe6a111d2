#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_InterfaceObj.h>
#include <omu_PrimType.h>

#include <array>

namespace {
constexpr std::array<const char*, 8> kDisplayNames = {"None", "Part",   "Assembly", "Sketch",
                                                      "Odb",  "XYPlot", "Stub",     "DetailPlot"};
}

omu_PrimType::omu_PrimType(const omu_InterfaceObj& object)
    : omu_PrimLeaf('t'), m_TypeString(object.TypeString()) {}

omu_PrimType::omu_PrimType(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_TypeString(reader.Get<cow_String>("typeString")),
      m_TypeUid(reader.Uid()) {}

cow_String omu_PrimType::TypeString() const {
  return m_TypeString.IsEmpty() ? cow_String("type") : AsString(0);
}

cow_String omu_PrimType::AsString(int) const { return m_TypeString + "Type"; }

bool omu_PrimType::operator==(const omu_Primitive& other) const {
  return other.IsType('t') && static_cast<const omu_PrimType&>(other).m_TypeString == m_TypeString;
}

void omu_PrimType::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_TypeUid, *this)) return;
  writer.Write("typeString", m_TypeString);
}

cow_String omu_PrimType::ConverTypeToString(const omu_ObjectToDisplayTypeEnm& type) {
  const auto index = static_cast<std::size_t>(type);
  return type >= 0 && index < kDisplayNames.size() ? cow_String(kDisplayNames[index])
                                                   : cow_String();
}

omu_ObjectToDisplayTypeEnm omu_PrimType::ConverStringToType(const cow_String& name) {
  for (std::size_t i = 0; i < kDisplayNames.size(); ++i) {
    if (name == kDisplayNames[i]) return static_cast<omu_ObjectToDisplayTypeEnm>(i);
  }
  return omu_DISPLAY_UNKNOWN;
}

void omu_PrimType::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimType>("omu_PrimType", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "typeString"}, cls_KIND_STRING);
}
