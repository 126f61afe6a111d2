#pragma once
/// \addtogroup bascore
/// @{

/// \class mem_BlockPool
/// Fixed-size blocks for small objects that are made and freed by the million (numbers,
/// short strings): a block costs a few instructions and no lock in the common case, and
/// takes its size rounded up to 16 bytes instead of a malloc chunk.
///
/// Sizes of 1 to MaxBlock bytes are served in classes of 16 bytes; larger ones go to the
/// global operator new and delete. Blocks are carved from arenas of about 260 KiB taken with
/// the global operator new, so the allocator's own figures count them. Each thread keeps up
/// to 256 free blocks per class and trades them in chains of 128 under a lock; a block may be
/// freed on any thread, and a thread's blocks go back when it ends. Up to 512 KiB of chains
/// per class wait for the next thread that needs them; the rest go back to their arenas. An
/// arena whose blocks are all free again goes back to operator delete, beyond the last two
/// per class kept to spare a loop that fills and empties them the cost of fresh pages. A free
/// block that waits keeps its arena, as a live one does. At exit, after the main thread's
/// lists, the waiting chains and the kept arenas go back, and from then on an arena goes back
/// as soon as its last block does: what the pool still holds then is what is still in use.
///
/// Sanitizers: the pool stays in use. Under AddressSanitizer every byte no caller holds is
/// poisoned (a free block, the rest of a block past the size asked for, pages not carved
/// yet), so reading or writing a freed block, freeing it twice and overflowing into its
/// rounding are reported as use-after-poison. A block freed and handed out again is not (there
/// is no quarantine: the next block asked of its class on the thread is usually the one freed
/// last), and LeakSanitizer sees arenas, not blocks, so a block never freed is reported only
/// when its whole arena is lost. ThreadSanitizer sees the lock and the per-thread lists as
/// they are.
///
/// Use it through a class's own operators, so that `new T` and `delete` on a T (or on a
/// base with a virtual destructor) come here with the same size:
/// \code
///   static void* operator new(std::size_t size) { return mem_BlockPool::Allocate(size); }
///   static void operator delete(void* block, std::size_t size) noexcept {
///     mem_BlockPool::Free(block, size);
///   }
/// \endcode
#include <BASCORE_Export.h>

#include <cstddef>

class BASCORE_EXPORT mem_BlockPool {
public:
  /// The largest size served from blocks.
  static constexpr std::size_t MaxBlock = 256;

  /// A block of at least size bytes, aligned to 16; throws std::bad_alloc when memory runs out.
  static void* Allocate(std::size_t size);
  /// Frees a block of Allocate; size must be the one it was asked for. Null does nothing.
  static void Free(void* block, std::size_t size) noexcept;
  /// The bytes the arenas of all classes hold, in use or free.
  static std::size_t ArenaBytes() noexcept;
};

/// @}
