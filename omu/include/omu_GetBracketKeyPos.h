#pragma once
/// \addtogroup omu
/// @{

/// \file
/// Where a quoted key's bracket stands in an access path such as mdb.models['Model-1']:
/// with '[' the first of [' and [" from start on; with ']' the first of '] and "], pointing
/// at the bracket itself. Answers the text's length when neither occurs. Any other bracket
/// character searches for empty patterns, which are found where the search starts: the
/// answer is start, kept within [0, length].
#include <CVX_Export.h>
#include <cow_String.h>

/// The position of bracket's quoted form in text, searching from start (see the file).
CVX_EXPORT int omu_GetBracketKeyPos(const cow_String& text, char bracket, int start);

/// @}
