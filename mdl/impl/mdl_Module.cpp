#include "mdl_ClassTable.h"

#include <UTI_CaeUtils.h>
#include <UTI_ModuleStartup.h>
#include <UTI_Modules.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;

void Start() { UTI_StartModule(mdl_ModuleNumber, typ_ArchCompEntry(mdl_ClassTable), {}); }
}  // namespace

void mdl_initialize(int& count) { s_Uses.Initialize(count, Start); }
void mdl_finalize(int& count) { s_Uses.Finalize(count, [] { UTI_StopModule(mdl_ModuleNumber); }); }
