#pragma once
/// \addtogroup bascore
/// @{

/// \file
/// Counted start-up and finalise of the BasCoreUtils library.
#include <BASCORE_Export.h>

BASCORE_EXPORT void QRLBasCoreUtils_initialize(int& count);
BASCORE_EXPORT void QRLBasCoreUtils_finalize(int& count);

/// @}
