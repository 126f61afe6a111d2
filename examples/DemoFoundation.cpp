#include "DemoSections.h"

#include <cls_MetadataRegistrar.h>

#include <iostream>

void DemoFoundation() {
  std::cout << "\n== Registered classes\n";
  for (const cls_ClassMetadata* md : cls_MetadataRegistrar::Instance().Registrar().Classes()) {
    std::cout << md->Name().View() << '\n';
  }
}
