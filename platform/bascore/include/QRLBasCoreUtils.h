#pragma once
/// \addtogroup bascore
/// @{

/// \file
/// Counted start-up and finalise of the BasCoreUtils library.
#include <BASCORE_Export.h>

/// Counted: only the first initialize and the last finalize do work, and each that does moves
/// count by one (up, then down).
///@{
BASCORE_EXPORT void QRLBasCoreUtils_initialize(int& count);
BASCORE_EXPORT void QRLBasCoreUtils_finalize(int& count);
///@}

/// @}
