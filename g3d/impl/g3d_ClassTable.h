#pragma once
// The g3d module's class table.
#include <typ_ArchCompRecord.h>

extern const typ_ArchCompTableData<4> g3d_ClassTable;
