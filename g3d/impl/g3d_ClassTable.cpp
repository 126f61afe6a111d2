#include "g3d_ClassTable.h"

const typ_ArchCompTableData<4> g3d_ClassTable = {
    typ_TableHeader,
    {
        typ_Row(typ_VALUE_CLASS, 0, 1, "g3d_Vector"),                    // 1
        typ_Row(typ_VALUE_CLASS, 0, 1, "g3d_Point"),                     // 2
        typ_Row(typ_EXCEPTION_CLASS, 31, 3, "g3d_ColorErrorException"),  // 3
        typ_Terminator,                                                  // 4
    }};
