#include "g3d_ClassTable.h"

#include <UTI_CaeUtils.h>
#include <UTI_ModuleStartup.h>
#include <UTI_Modules.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;

void Start() { UTI_StartModule(g3d_ModuleNumber, typ_ArchCompEntry(g3d_ClassTable), {}); }
}  // namespace

void g3d_initialize(int& count) { s_Uses.Initialize(count, Start); }
void g3d_finalize(int& count) { s_Uses.Finalize(count, [] { UTI_StopModule(g3d_ModuleNumber); }); }
