#pragma once
/// \addtogroup bascore
/// @{

/// \file
/// The application's allocation entry points. Failure throws std::bad_alloc.
#include <BASCORE_Export.h>

#include <cstddef>

/// A block of at least size bytes (1 for 0), to be freed with mem_Free.
BASCORE_EXPORT void* mem_Malloc(std::size_t size);
/// Frees a block of mem_Malloc; null does nothing.
BASCORE_EXPORT void mem_Free(void* block) noexcept;

/// @}
