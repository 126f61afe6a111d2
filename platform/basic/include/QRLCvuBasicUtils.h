#pragma once
/// \addtogroup basic
/// @{

/// \file
/// Counted start-up and finalise of the BasicUtils library: registers its own classes.
#include <BASIC_Export.h>

/// Counted: only the first initialize and the last finalize do work, and each that does moves
/// count by one (up, then down).
///@{
BASIC_EXPORT void QRLCvuBasicUtils_initialize(int& count);
BASIC_EXPORT void QRLCvuBasicUtils_finalize(int& count);
///@}

/// @}
