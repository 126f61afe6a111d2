#pragma once
/// \addtogroup basic
/// @{

/// \file
/// Regular-expression search and split (ECMAScript syntax). Patterns are compiled once per
/// thread and kept; a malformed pattern raises nex_TextException.
#include <BASIC_Export.h>
#include <cow_List.h>
#include <cow_String.h>
#include <rgx_MatchIterator.h>

/// Searches subject for the first occurrence of pattern (pattern first, subject second).
BASIC_EXPORT rgx_MatchIterator rgx_match(const char* pattern, const char* subject);
/// Splits subject at every match of pattern; empty pieces are kept, so joining the pieces
/// with the separators gives the subject back.
BASIC_EXPORT cow_List<cow_String> rgx_split(const char* pattern, const char* subject);

/// @}
