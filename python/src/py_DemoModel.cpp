#include "py_DemoModel.h"

#include <cls_Archive.h>
#include <omu_KeyErrorException.h>
#include <omu_NameString.h>
#include <omu_PrimEnum.h>

#include <algorithm>

namespace {
constexpr const char* kSource = "python/src/py_DemoModel";
// Record types of the demonstration model, in a module number of its own.
constexpr unsigned int kModelTypeId = 0x00FD0001;
constexpr unsigned int kMaterialTypeId = 0x00FD0002;
constexpr unsigned int kSectionTypeId = 0x00FD0003;

template <class Record>
void Replace(std::vector<std::shared_ptr<Record>>& records, std::shared_ptr<Record> record) {
  auto same = std::find_if(records.begin(), records.end(),
                           [&](const auto& held) { return held->name == record->name; });
  if (same != records.end()) {
    *same = std::move(record);
  } else {
    records.push_back(std::move(record));
  }
}

void WriteMaterial(const py_DemoMaterial::Record& material, const cls_WriteVisitor& writer) {
  writer.StartWrite(kMaterialTypeId, cls_Uid());
  writer.Write("name", material.name);
  writer.WriteObject("elastic", material.elastic);
}

void WriteSection(const py_DemoSection::Record& section, const cls_WriteVisitor& writer) {
  writer.StartWrite(kSectionTypeId, cls_Uid());
  writer.Write("name", section.name);
  writer.WriteObject("thickness", section.thickness);
  writer.WriteObject("material", section.material);
  const auto& statuses = section.statuses;
  writer.WriteObjects("statuses", statuses.Length(), [&](int i, const cls_WriteVisitor& item) {
    item.WriteValue(
        cls_Value(cls_EnumName{omu_PrimEnum<mdl_PropagationStatusEnm, 1>(statuses[i]).Name()}));
  });
}
}  // namespace

py_DemoModel& py_DemoModel::Instance() {
  // Never freed: handles may outlive the module's teardown.
  static auto* model = new py_DemoModel();
  return *model;
}

void py_DemoModel::Add(std::shared_ptr<py_DemoMaterial::Record> material) {
  Replace(m_Materials, std::move(material));
}

void py_DemoModel::Add(std::shared_ptr<py_DemoSection::Record> section) {
  Replace(m_Sections, std::move(section));
}

std::shared_ptr<py_DemoMaterial::Record> py_DemoModel::Material(const cow_String& name) const {
  for (const auto& material : m_Materials) {
    if (material->name == name && !material->deleted) return material;
  }
  NEX_THROW(omu_KeyErrorException(omu_NameString(name)), kSource);
}

void py_DemoModel::Annotate(const cow_String& key, const omu_PrimTuple& values) {
  m_Notes.Put(values, key);
}

std::string py_DemoModel::Archive() const {
  std::vector<const py_DemoMaterial::Record*> live;
  for (const auto& material : m_Materials) {
    if (!material->deleted) live.push_back(material.get());
  }
  cls_Archive archive;
  const cls_WriteVisitor root = archive.NewRoot();
  root.StartWrite(kModelTypeId, cls_Uid());
  root.WriteObjects("materials", static_cast<int>(live.size()),
                    [&](int i, const cls_WriteVisitor& item) { WriteMaterial(*live[i], item); });
  root.WriteObjects(
      "sections", static_cast<int>(m_Sections.size()),
      [&](int i, const cls_WriteVisitor& item) { WriteSection(*m_Sections[i], item); });
  root.WriteObject("notes", m_Notes);
  return archive.ToBytes();
}

void py_DemoModel::Reset() {
  m_Materials.clear();
  m_Sections.clear();
  m_Notes = omu_PrimDictionary<cow_String>();
}
