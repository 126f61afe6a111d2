#include "mdl_ClassTable.h"

#include <mdl_Extension.h>
#include <mdl_JaggedArray.h>
#include <mdl_PropagatingAttribute.h>
#include <mdl_PropertyTable.h>
#include <mdl_Repository.h>

#include <UTI_CaeUtils.h>
#include <UTI_ModuleStartup.h>
#include <UTI_Modules.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;

void Start() {
  UTI_StartModule(mdl_ModuleNumber, typ_ArchCompEntry(mdl_ClassTable),
                  {
                      {&mdl_PropAttr<cow_String>::InitializeMetadata, 7},
                      {&mdl_PropAttr<double>::InitializeMetadata, 7},
                      {&mdl_PropAttr<bool>::InitializeMetadata, 7},
                      {&mdl_PropAttr<cls_xpListInt>::InitializeMetadata, 7},
                      {&mdl_PropAttr<int>::InitializeMetadata, 7},
                      {&mdl_PropAttr<cls_xp1DArrayInt>::InitializeMetadata, 7},
                      {&mdl_PropAttr<cls_xpListString>::InitializeMetadata, 7},
                      {&mdl_PropAttr<cls_xp1DArrayListFloat>::InitializeMetadata, 7},
                      {&mdl_Extension::InitializeMetadata, 7},
                      {&mdl_Repository::InitializeMetadata, 7},
                      {&mdl_PropertyTable::InitializeMetadata, 7},
                      {&mdl_JaggedArray::InitializeMetadata, 4},
                  });
}
}  // namespace

void mdl_initialize(int& count) { s_Uses.Initialize(count, Start); }
void mdl_finalize(int& count) {
  s_Uses.Finalize(count, [] { UTI_StopModule(mdl_ModuleNumber); });
}
