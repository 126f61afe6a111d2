#pragma once
/// \addtogroup basic
/// @{

/// \file
/// Counted start-up and finalise of the BasicUtils library: registers its own classes.
#include <BASIC_Export.h>

BASIC_EXPORT void QRLCvuBasicUtils_initialize(int& count);
BASIC_EXPORT void QRLCvuBasicUtils_finalize(int& count);

/// @}
