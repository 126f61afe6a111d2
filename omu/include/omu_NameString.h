#pragma once
/// \addtogroup omu
/// @{

/// \file
/// The script text of a string value: quoted with ' (or with " when the text holds a ' and
/// no "), backslashes doubled, the chosen quote escaped, newlines written as \n.
#include <CVX_Export.h>
#include <cow_String.h>

/// text in script string syntax (see the file).
CVX_EXPORT cow_String omu_NameString(const cow_String& text);

/// @}
