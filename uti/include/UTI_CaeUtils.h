#pragma once
/// \addtogroup uti
/// @{

/// \file
/// Start-up and finalise of the library and of each of its modules. Every entry is counted:
/// only the first start and the last finalise do work, and each that does moves the caller's
/// count by one. Call on one thread, before and after all other use.
#include <CVX_Export.h>

/// The library's version, "major.minor.patch", the same as the installed package's
/// CaeUtilsConfigVersion.cmake and the newest entry of CHANGELOG.md. Needs no start-up.
CVX_EXPORT const char* UTI_CaeUtils_version();

/// The whole library, every module below included.
///@{
CVX_EXPORT void UTI_CaeUtils_initialize(int& count);
CVX_EXPORT void UTI_CaeUtils_finalize(int& count);
///@}

/// One module, with the modules and libraries it needs.
///@{
CVX_EXPORT void wip_initialize(int& count);
CVX_EXPORT void wip_finalize(int& count);
CVX_EXPORT void idb_initialize(int& count);
CVX_EXPORT void idb_finalize(int& count);
CVX_EXPORT void g3d_initialize(int& count);
CVX_EXPORT void g3d_finalize(int& count);
CVX_EXPORT void omu_initialize(int& count);
CVX_EXPORT void omu_finalize(int& count);
CVX_EXPORT void mdl_initialize(int& count);
CVX_EXPORT void mdl_finalize(int& count);
///@}

/// @}
