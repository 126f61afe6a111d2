#pragma once
// The mdl module's class table (also its archive-compatibility table).
#include <typ_ArchCompRecord.h>

extern const typ_ArchCompTableData<26> mdl_ClassTable;
