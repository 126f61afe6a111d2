#include "py_JournalArena.h"

#include <cstdint>
#include <new>

#if defined(__linux__)
#include <sys/mman.h>
#endif

py_JournalArena::~py_JournalArena() {
  for (const Chunk& chunk : m_Chunks) Unmap(chunk);
}

void* py_JournalArena::do_allocate(std::size_t bytes, std::size_t alignment) {
  if (bytes > ChunkBytes / 4) return Take(bytes);
  std::size_t skip = -reinterpret_cast<std::uintptr_t>(m_Next) & (alignment - 1);
  if (skip + bytes > m_Left) {
    m_Next = static_cast<char*>(Take(ChunkBytes));
    m_Left = ChunkBytes;
    skip = 0;
  }
  void* piece = m_Next + skip;
  m_Next += skip + bytes;
  m_Left -= skip + bytes;
  return piece;
}

void* py_JournalArena::Take(std::size_t bytes) {
  m_Chunks.reserve(m_Chunks.size() + 1);  // first: a mapping made is never lost to a failed push
  void* base = Map(bytes);
  m_Chunks.push_back({base, bytes});
  return base;
}

void* py_JournalArena::Map(std::size_t bytes) {
#if defined(__linux__)
  void* base = mmap(nullptr, bytes, PROT_READ | PROT_WRITE,
                    MAP_PRIVATE | MAP_ANONYMOUS | MAP_POPULATE, -1, 0);
  if (base == MAP_FAILED) throw std::bad_alloc();
  return base;
#else
  return ::operator new(bytes);
#endif
}

void py_JournalArena::Unmap(const Chunk& chunk) noexcept {
#if defined(__linux__)
  munmap(chunk.base, chunk.bytes);
#else
  ::operator delete(chunk.base);
#endif
}
