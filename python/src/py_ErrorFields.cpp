#include "py_ErrorFields.h"

#include "py_Caster.h"

#include <cls_Archive.h>
#include <cls_Value.h>

#include <cctype>

namespace py = pybind11;

namespace {
// The Python value of a field, or null for kinds an error does not persist.
py::object ValueOf(const cls_Value& value) {
  if (const auto* number = value.As<std::int32_t>()) return py::int_(*number);
  if (const auto* text = value.As<cow_String>()) {
    return py::reinterpret_steal<py::object>(py_Caster<cow_String>::ToPython(*text));
  }
  return {};
}

// Every level of the record, most derived first.
void AttachLevel(const cls_Value& level, py::handle exception) {
  const auto* record = level.As<std::shared_ptr<cls_Record>>();
  if (!record || !*record) return;
  for (const auto& [name, value] : (*record)->fields) {
    if (py::object item = ValueOf(value)) {
      exception.attr(py::str(py_ErrorFields::AttributeName(name.View()))) = item;
    }
  }
  AttachLevel((*record)->parent, exception);
}
}  // namespace

void py_ErrorFields::Attach(const nex_Exception& error, py::handle exception) {
  cls_Archive archive;
  archive.Add(error);
  AttachLevel(archive.RootValue(0), exception);
}

std::string py_ErrorFields::AttributeName(std::string_view field) {
  if (field.starts_with("m_")) field.remove_prefix(2);
  std::string name;
  for (const char c : field) {
    const auto byte = static_cast<unsigned char>(c);
    if (std::isupper(byte) && !name.empty()) name += '_';
    name += static_cast<char>(std::tolower(byte));
  }
  return name;
}
