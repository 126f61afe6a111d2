#pragma once
// The demonstration model the demo commands build: the materials and sections created so far,
// by name, in creation order (a new one of an existing name replaces it in place). Handles on
// a material or section share its record with the model, so a change through a handle is in
// the model too; a deleted material is left out of the archive.
//
//   Annotate(key, values)   keeps a tuple of any values as the model's note under key
//               (replacing one of that key), persisted as the primitives it holds.
//   Archive()   the model through the library's archive writer (cls_Archive::ToBytes): one
//               record holding "materials" (name, elastic property table), "sections"
//               (name, thickness and material as propagating attributes, step statuses by
//               name) and "notes" (a text-keyed dictionary primitive). Identities are numbered in
//               write order, so equal models give equal bytes.
//   Reset()     empties the model.
//
// One model per process; call with the GIL held.
#include "py_DemoMaterial.h"
#include "py_DemoSection.h"

#include <omu_PrimDictionary.h>
#include <omu_PrimTuple.h>

#include <memory>
#include <string>
#include <vector>

class py_DemoModel {
public:
  static py_DemoModel& Instance();

  void Add(std::shared_ptr<py_DemoMaterial::Record> material);
  void Add(std::shared_ptr<py_DemoSection::Record> section);
  // The live material of that name; KeyError otherwise.
  std::shared_ptr<py_DemoMaterial::Record> Material(const cow_String& name) const;
  void Annotate(const cow_String& key, const omu_PrimTuple& values);
  std::string Archive() const;
  void Reset();

private:
  std::vector<std::shared_ptr<py_DemoMaterial::Record>> m_Materials;
  std::vector<std::shared_ptr<py_DemoSection::Record>> m_Sections;
  omu_PrimDictionary<cow_String> m_Notes;
};
