#pragma once
// The omu module's class table, as inserted into the architecture-compatibility table.
#include <typ_ArchCompRecord.h>

extern const typ_ArchCompTableData<50> omu_ClassTable;
