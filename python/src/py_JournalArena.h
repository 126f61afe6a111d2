#pragma once
// The memory of the journal, which grows by a few words on every call for as long as a session
// runs and is given back all at once. It is taken from the system a megabyte at a time with its
// pages already mapped in (on Linux): faulting fresh pages in one at a time cost more than the
// journal's own work on a call. Pieces are never freed one by one; a piece larger than a chunk
// gets a mapping of its own. Not thread-safe, as the journal is used with the GIL held.
#include <cstddef>
#include <memory_resource>
#include <vector>

class py_JournalArena final : public std::pmr::memory_resource {
public:
  static constexpr std::size_t ChunkBytes = std::size_t(1) << 20;

  py_JournalArena() = default;
  py_JournalArena(const py_JournalArena&) = delete;
  py_JournalArena& operator=(const py_JournalArena&) = delete;
  ~py_JournalArena() override;

private:
  struct Chunk {
    void* base;
    std::size_t bytes;
  };

  // Raises std::bad_alloc when the system has no memory to give.
  void* do_allocate(std::size_t bytes, std::size_t alignment) override;
  void do_deallocate(void*, std::size_t, std::size_t) noexcept override {}
  bool do_is_equal(const std::pmr::memory_resource& other) const noexcept override {
    return this == &other;
  }
  // A new chunk of bytes, kept until the arena dies.
  void* Take(std::size_t bytes);
  static void* Map(std::size_t bytes);
  static void Unmap(const Chunk& chunk) noexcept;

  std::vector<Chunk> m_Chunks;
  // What is left of the last chunk of ChunkBytes.
  char* m_Next = nullptr;
  std::size_t m_Left = 0;
};
