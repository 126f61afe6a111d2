#pragma once
/// \addtogroup omu
/// @{

/// \file
/// The text of a quoted script string: the quotes dropped and the escaped quote of the same
/// kind unescaped. Nothing else is unescaped (\\ and \n stay as they are). Bad quoting is
/// reported on the error stream and the input passes through.
#include <CVX_Export.h>
#include <cow_String.h>

/// The text inside quoted (see the file).
CVX_EXPORT cow_String omu_StringFromQString(const cow_String& quoted);

/// @}
