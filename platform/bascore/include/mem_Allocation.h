#pragma once
/// \addtogroup bascore
/// @{

/// \file
/// The application's allocation entry points. Failure throws std::bad_alloc.
#include <BASCORE_Export.h>

#include <cstddef>

BASCORE_EXPORT void* mem_Malloc(std::size_t size);
BASCORE_EXPORT void mem_Free(void* block) noexcept;

/// @}
