#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <omu_PrimEnumBase.h>
#include <utl_Catenator.h>

omu_PrimEnumBase::omu_PrimEnumBase(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Name(reader.Get<cow_String>("stringValue")),
      m_EnumUid(reader.Uid()) {}

bool omu_PrimEnumBase::SetValue(const char* name) {
  m_Name = cow_String(name);
  return true;
}

bool omu_PrimEnumBase::operator==(const omu_Primitive& other) const {
  return other.IsType('c') && static_cast<const omu_PrimEnumBase&>(other).m_Name == m_Name;
}

cow_Map<cow_String, unsigned int> omu_PrimEnumBase::PermissibleValues() const { return {}; }

cow_String omu_PrimEnumBase::PermissibleValuesAsString() const {
  utl_Catenator text;
  text << '{';
  const char* separator = "";
  for (const auto& [name, value] : PermissibleValues()) {
    text << separator << name << ": " << value;
    separator = ", ";
  }
  text << '}';
  return text.String();
}

cow_String omu_PrimEnumBase::TypeString() const {
  const cow_List<cow_String> names = PermissibleValues().Keys();
  utl_Catenator text;
  for (int i = 0; i < names.Length(); ++i) {
    if (i > 0) text << (i + 1 == names.Length() ? " or " : ", ");
    text << names[i];
  }
  return text.String();
}

void omu_PrimEnumBase::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_EnumUid, *this)) return;
  writer.Write("stringValue", m_Name);
}

void omu_PrimEnumBase::InitializeMetadata(cls_ClassRegistrar& registrar) {
  // Registered as "omu_PrimEnum": archives name the enumeration values by that class.
  registrar
      .AddClassMD(
          new cls_TypeAdapter<omu_PrimEnumBase>("omu_PrimEnum", 514, omu_Primitive::TypeId()))
      .AddAttribute({0, "stringValue"}, cls_KIND_STRING);
}
