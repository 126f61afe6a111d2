#include "omu_ClassTable.h"

namespace {
constexpr std::uint32_t E = typ_EXCEPTION_CLASS;
constexpr std::uint32_t V = typ_VALUE_CLASS;
}  // namespace

// Row n describes class number n. The boolean constants take 37-39 (omu_PrimBool<2> is
// 19:37), which leaves 36 for omu_PrimComplex, a registered value class without a number
// of its own in the listing; the wrappers and the last value classes follow from 40.
const typ_ArchCompTableData<50> omu_ClassTable = {
    typ_TableHeader,
    {
        typ_Row(E, 31, 3, "omu_TypeErrorException"),          // 1
        typ_Row(E, 19, 1, "omu_KeywordTypeErrorException"),   // 2
        typ_Row(E, 19, 1, "omu_ArgTypeErrorException"),       // 3
        typ_Row(E, 19, 1, "omu_ArgNumberErrorException"),     // 4
        typ_Row(E, 19, 1, "omu_KeywordErrorException"),       // 5
        typ_Row(E, 31, 3, "omu_AttributeErrorException"),     // 6
        typ_Row(E, 31, 3, "omu_KeyErrorException"),           // 7
        typ_Row(E, 31, 3, "omu_IndexErrorException"),         // 8
        typ_Row(E, 31, 3, "omu_RangeErrorException"),         // 9
        typ_Row(E, 31, 3, "omu_ValueErrorException"),         // 10
        typ_Row(E, 31, 3, "omu_OverflowErrorException"),      // 11
        typ_Row(E, 31, 3, "omu_NameErrorException"),          // 12
        typ_Row(E, 31, 3, "omu_ZeroDivisionErrorException"),  // 13
        typ_UnusedRow,                                        // 14
        typ_Row(E, 31, 3, "omu_FontErrorException"),          // 15
        typ_Row(E, 31, 3, "omu_AccessErrorException"),        // 16
        typ_Row(V, 0, 1, "omu_Primitive"),                    // 17
        typ_Row(V, 19, 17, "omu_PrimDictionaryBase"),         // 18
        typ_Row(V, 19, 18, "omu_PrimIntDictionary"),          // 19
        typ_Row(V, 19, 18, "omu_PrimStrDictionary"),          // 20
        typ_Row(V, 19, 25, "omu_PrimList"),                   // 21
        typ_Row(V, 19, 17, "omu_PrimNumber"),                 // 22
        typ_Row(V, 19, 17, "omu_PrimPath"),                   // 23
        typ_Row(V, 19, 17, "omu_PrimString"),                 // 24
        typ_Row(V, 19, 32, "omu_PrimTuple"),                  // 25
        typ_Row(V, 19, 17, "omu_PrimExpr"),                   // 26
        typ_Row(V, 19, 17, "omu_PrimEnumBase"),               // 27
        typ_Row(V, 0, 1, "omu_QueryPathMsg"),                 // 28
        typ_Row(V, 19, 17, "omu_PrimNone"),                   // 29
        typ_Row(V, 19, 17, "omu_PrimWrapper"),                // 30
        typ_Row(V, 19, 17, "omu_PrimType"),                   // 31
        typ_Row(V, 19, 17, "omu_PrimSequence"),               // 32
        typ_Row(V, 19, 32, "omu_PrimArray"),                  // 33
        typ_Row(E, 31, 3, "omu_CorNameErrorException"),       // 34
        typ_Row(E, 19, 1, "omu_GenericTypeErrorException"),   // 35
        typ_Row(V, 19, 17, "omu_PrimComplex"),                // 36
        typ_Row(V, 19, 27, "omu_OnOffConst"),                 // 37
        typ_Row(V, 19, 27, "omu_TrueFalseConst"),             // 38
        typ_Row(V, 19, 27, "omu_YesNoConst"),                 // 39
        typ_Row(E, 31, 3, "omu_GuiAccessErrorException"),     // 40
        typ_Row(V, 19, 17, "omu_PyObjectWrapper"),            // 41
        typ_Row(V, 19, 45, "omu_DictPyObjectWrapper"),        // 42
        typ_Row(V, 19, 19, "omu_DictIntPyObjectWrapper"),     // 43
        typ_Row(V, 19, 20, "omu_DictStrPyObjectWrapper"),     // 44
        typ_Row(V, 19, 18, "omu_PrimDictionary"),             // 45
        typ_Row(V, 19, 21, "omu_ListPyObjectWrapper"),        // 46
        typ_Row(V, 19, 17, "omu_PrimException"),              // 47
        typ_Row(V, 19, 17, "omu_PrimTranslatedString"),       // 48
        typ_Row(V, 19, 17, "omu_PrimBoolean"),                // 49
        typ_Terminator,                                       // 50
    }};
