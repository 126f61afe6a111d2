#include <mem_Allocation.h>

#include <cstdlib>
#include <new>

// The allocation layer itself: the one place that calls malloc and free.
// NOLINTBEGIN(cppcoreguidelines-no-malloc)
void* mem_Malloc(std::size_t size) {
  if (void* block = std::malloc(size == 0 ? 1 : size)) return block;
  throw std::bad_alloc();
}

void mem_Free(void* block) noexcept { std::free(block); }
// NOLINTEND(cppcoreguidelines-no-malloc)
