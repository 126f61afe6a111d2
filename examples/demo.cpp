// The library's main job end to end: values, errors and objects crossing the scripting
// boundary, persisted and read back, with the other subsystems around them.
#include "DemoSections.h"

#include <UTI_CaeUtils.h>

#include <iostream>

int main() {
  int count = 0;
  UTI_CaeUtils_initialize(count);
  std::cout << "CaeUtils started (" << count << " components)\n";
  DemoFoundation();
  DemoValues();
  DemoScriptCall();
  DemoModel();
  DemoGeometry();
  UTI_CaeUtils_finalize(count);
  std::cout << "CaeUtils stopped (" << count << " components left)\n";
}
