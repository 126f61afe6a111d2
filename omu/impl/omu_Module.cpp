#include "omu_ClassTable.h"

#include <UTI_CaeUtils.h>
#include <UTI_ModuleStartup.h>
#include <UTI_Modules.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;

void Start() { UTI_StartModule(omu_ModuleNumber, typ_ArchCompEntry(omu_ClassTable), {}); }
}  // namespace

void omu_initialize(int& count) { s_Uses.Initialize(count, Start); }
void omu_finalize(int& count) { s_Uses.Finalize(count, [] { UTI_StopModule(omu_ModuleNumber); }); }
