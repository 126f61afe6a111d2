// Start-up and the class registry, scripting errors as a script sees them, and an archive
// written and read back.
#include "DemoSections.h"

#include <cls_Archive.h>
#include <cls_MetadataRegistrar.h>
#include <mdl_Repository.h>
#include <omu_ArgNumberErrorException.h>
#include <omu_ArgTypeErrorException.h>
#include <omu_CorNameErrorException.h>
#include <omu_KeywordErrorException.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimNone.h>
#include <omu_PrimType.h>
#include <omu_RangeErrorException.h>

#include <cstdio>
#include <filesystem>
#include <iostream>
#include <memory>
#include <vector>

namespace {
void ListClasses() {
  std::cout << "\n== Registered classes (type id, name, parent)\n";
  const cls_ClassRegistrar& registry = cls_MetadataRegistrar::Instance().Registrar();
  for (const cls_ClassMetadata* md : registry.Classes()) {
    const cls_ClassMetadata* parent = registry.Find(md->ParentTypeId());
    std::printf("  0x%06x  %-34s <- %s\n", md->TypeId(), md->Name().CStr(),
                parent ? parent->Name().CStr() : "(root)");
  }
}

void RaiseErrors() {
  std::cout << "\n== Scripting errors, as a script sees them\n";
  const std::unique_ptr<nex_CommandException> errors[] = {
      std::make_unique<omu_ArgNumberErrorException>(2, 3),
      std::make_unique<omu_ArgTypeErrorException>(3, "float", "string", "points"),
      std::make_unique<omu_KeywordErrorException>("colour"),
      std::make_unique<omu_CorNameErrorException>(2),
      std::make_unique<omu_RangeErrorException>("x", 2, "0", 1, "10", 2)};
  for (const auto& error : errors) {
    try {
      error->Propagate();
    } catch (const nex_CommandException& raised) {
      std::cout << "  " << raised.PythonType().View() << ": " << raised.JournalMessage().View()
                << '\n';
    }
  }
}

void ArchiveRoundTrip() {
  std::cout << "\n== Archive round trip\n";
  mdl_Repository parts("parts");
  parts.AddKey("Part-1");
  parts.AddKey("Part-2");
  std::vector<std::unique_ptr<omu_Primitive>> values;
  values.push_back(std::make_unique<omu_PrimType>("Part"));
  values.push_back(std::make_unique<omu_PrimEnumBase>("UNCHANGED"));
  values.push_back(std::make_unique<omu_PrimNone>());

  cls_Archive archive;
  archive.Add(parts);
  for (const auto& value : values) archive.Add(*value);
  const auto path = std::filesystem::temp_directory_path() / "cvx_demo.cvxarch";
  archive.Save(path);
  const cls_Archive loaded = cls_Archive::Load(path);
  std::cout << "  wrote " << archive.RootCount() << " records to " << path.string() << " ("
            << std::filesystem::file_size(path) << " bytes) and read them back\n";

  const auto repository = loaded.Read<mdl_Extension>(0);
  const bool same = static_cast<const mdl_Repository&>(*repository) == parts;
  std::cout << "  repository 'parts' with " << parts.Keys().Length()
            << " keys: " << (same ? "equal" : "DIFFERENT") << '\n';
  for (std::size_t i = 0; i < values.size(); ++i) {
    const auto value = loaded.Read<omu_Primitive>(static_cast<int>(i) + 1);
    std::cout << "  " << value->AsRepr().View() << ": "
              << (*value == *values[i] ? "equal" : "DIFFERENT") << '\n';
  }
  std::filesystem::remove(path);
}
}  // namespace

void DemoFoundation() {
  ListClasses();
  RaiseErrors();
  ArchiveRoundTrip();
}
