#include "mdl_ClassTable.h"

namespace {
constexpr std::uint32_t V = typ_VALUE_CLASS;
}

// "mdl_Prop1DArrayListFloat" is the table's spelling; the class registers itself as
// "mdl_PropList1DArrayListFloat". Rows 23 and 24 reserve numbers no class uses.
const typ_ArchCompTableData<26> mdl_ClassTable = {
    typ_TableHeader,
    {
        typ_Row(V, 10, 13, "mdl_Repository"),  // 1
        typ_UnusedRow,
        typ_UnusedRow,
        typ_UnusedRow,  // 2-4
        typ_UnusedRow,
        typ_UnusedRow,
        typ_UnusedRow,  // 5-7
        typ_UnusedRow,
        typ_UnusedRow,
        typ_UnusedRow,  // 8-10
        typ_UnusedRow,
        typ_UnusedRow,                                 // 11-12
        typ_Row(V, 0, 1, "mdl_Extension"),             // 13
        typ_Row(V, 0, 1, "mdl_PropString"),            // 14
        typ_Row(V, 0, 1, "mdl_PropDouble"),            // 15
        typ_Row(V, 0, 1, "mdl_PropBool"),              // 16
        typ_Row(V, 0, 1, "mdl_PropListInt"),           // 17
        typ_Row(V, 0, 1, "mdl_PropertyTable"),         // 18
        typ_Row(V, 0, 1, "mdl_PropInt"),               // 19
        typ_Row(V, 0, 1, "mdl_Prop1DArrayInt"),        // 20
        typ_Row(V, 0, 1, "mdl_PropListString"),        // 21
        typ_Row(V, 0, 1, "mdl_Prop1DArrayListFloat"),  // 22
        typ_Row(V, 0, 1, "mdl_PropBoolArray"),         // 23
        typ_Row(V, 0, 1, "mdl_PropStringArray"),       // 24
        typ_Row(V, 0, 1, "mdl_JaggedArray"),           // 25
        typ_Terminator,                                // 26
    }};
