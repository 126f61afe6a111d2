#include "g3d_ClassTable.h"

#include <UTI_CaeUtils.h>
#include <UTI_ModuleStartup.h>
#include <UTI_Modules.h>
#include <g3d_ColorErrorException.h>
#include <g3d_ColorMap.h>
#include <g3d_Point.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;

void Start() {
  UTI_StartModule(g3d_ModuleNumber, typ_ArchCompEntry(g3d_ClassTable),
                  {{&g3d_ColorErrorException::InitializeMetadata, 2},
                   {&g3d_Point::InitializeMetadata, 4},
                   {&g3d_Vector::InitializeMetadata, 4}});
  g3d_ColorMap::Instance();  // made here, so that threads looking up names never race to make it
}

void Stop() {
  g3d_ColorMap::Destroy();
  UTI_StopModule(g3d_ModuleNumber);
}
}  // namespace

void g3d_initialize(int& count) { s_Uses.Initialize(count, Start); }
void g3d_finalize(int& count) { s_Uses.Finalize(count, Stop); }
