#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <cls_xcList.h>
#include <omu_PrimPath.h>
#include <utl_Catenator.h>

namespace {
cow_List<cow_String> ReadContext(const cls_ReadVisitor& reader) {
  const cls_xcList list(reader.Nested("context"));
  std::vector<cow_String> components;
  components.reserve(static_cast<std::size_t>(list.Count()));
  for (int i = 0; i < list.Count(); ++i) {
    const auto* text = list.Item(i).As<cow_String>();
    if (!text) list.Reader().Fail("a path component is not a text");
    components.push_back(*text);
  }
  return cow_List<cow_String>(std::move(components));
}
}  // namespace

omu_PrimPath::omu_PrimPath(const cls_ReadVisitor& reader)
    : omu_PrimLeaf(cls_ReadVisitor(reader, omu_Primitive::TypeId())),
      m_Context(ReadContext(reader)),
      m_ContextType(reader.Get<char>("contextType")),
      m_PathUid(reader.Uid()) {}

cow_String omu_PrimPath::AsString(int) const {
  utl_Catenator text;
  text << '\'';
  for (const cow_String& component : m_Context) text << component << '.';
  const std::string_view body = text.View();
  std::size_t end = body.size();
  while (end > 1 && body[end - 1] == '.') --end;  // the opening quote stays
  text.Chop(static_cast<int>(body.size() - end));
  text << '\'';
  return text.String();
}

bool omu_PrimPath::operator==(const omu_Primitive& other) const {
  return other.IsType('p') && static_cast<const omu_PrimPath&>(other).m_Context == m_Context;
}

void omu_PrimPath::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartLevel<omu_Primitive>(TypeId(), m_PathUid, *this)) return;
  writer.WriteObject("context", cls_xcList(cls_Uid(), m_Context.Length(),
                                           [this](int i, const cls_WriteVisitor& item) {
                                             item.WriteValue(cls_Value(m_Context[i]));
                                           }));
  writer.Write("contextType", m_ContextType);
}

void omu_PrimPath::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar
      .AddClassMD(new cls_TypeAdapter<omu_PrimPath>("omu_PrimPath", 800, omu_Primitive::TypeId()))
      .AddAttribute({0, "context"}, cls_KIND_REFERENCE, cls_xcList::TypeId(), 55)
      .AddAttribute({1, "contextType"}, cls_KIND_CHAR);
}
