#include <cls_ClassRegistrar.h>
#include <cls_ReadVisitor.h>
#include <cls_TypeAdapter.h>
#include <cls_WriteVisitor.h>
#include <mdl_JaggedArray.h>

mdl_JaggedArray::mdl_JaggedArray(const cls_ReadVisitor& reader) {
  for (const cls_Value& row : reader.ReadList("rows")) {
    const auto* cells = row.As<cls_Value::List>();
    if (!cells) reader.Fail("a row of 'rows' is not a list");
    std::vector<double> values;
    values.reserve(cells->size());
    for (const cls_Value& cell : *cells) {
      const auto* value = cell.As<double>();
      if (!value) reader.Fail("a row of 'rows' holds something other than doubles");
      values.push_back(*value);
    }
    m_Rows.Append(cow_List<double>(std::move(values)));
  }
  m_Uid = reader.Uid();
}

void mdl_JaggedArray::DBWrite(const cls_WriteVisitor& writer) const {
  if (!writer.StartWrite(TypeId(), m_Uid)) return;
  cls_Value::List rows;
  rows.reserve(static_cast<std::size_t>(Rows()));
  for (const cow_List<double>& row : m_Rows)
    rows.emplace_back(cls_Value::List(row.begin(), row.end()));
  writer.Write("rows", std::move(rows));
}

void mdl_JaggedArray::InitializeMetadata(cls_ClassRegistrar& registrar) {
  registrar.AddClassMD(new cls_TypeAdapter<mdl_JaggedArray>("mdl_JaggedArray", 800, cls_RootTypeId))
      .AddAttribute({0, "rows"}, cls_KIND_LIST);
}
