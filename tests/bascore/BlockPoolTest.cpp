#include <gtest/gtest.h>
#include <mem_BlockPool.h>

#include <barrier>
#include <cstdint>
#include <cstring>
#include <set>
#include <thread>
#include <vector>

namespace {
// Sanitizer builds hand every size to operator new, which holds no arenas.
bool Pooled() {
  void* block = mem_BlockPool::Allocate(16);
  const bool pooled = mem_BlockPool::ArenaBytes() > 0;
  mem_BlockPool::Free(block, 16);
  return pooled;
}

unsigned char Mark(std::size_t thread, std::size_t i) {
  return static_cast<unsigned char>(thread * 31 + i);
}
}  // namespace

TEST(BlockPool, BlocksStayDistinctAcrossThreadsAndFreeAnywhere) {
  const struct {
    const char* name;
    std::size_t size;
    std::size_t threads;
    std::size_t count;    // per thread
    bool freedElsewhere;  // each thread frees its neighbour's blocks instead of its own
  } cases[] = {
      {"one thread, many blocks", 48, 1, 200'000, false},
      {"threads free their own", 32, 4, 20'000, false},
      {"threads free each other's", 64, 4, 20'000, true},
      {"the smallest size", 1, 3, 5'000, true},
      {"the largest class", mem_BlockPool::MaxBlock, 2, 3'000, true},
      {"above the largest class", mem_BlockPool::MaxBlock + 1, 2, 1'000, true},
  };
  const bool pooled = Pooled();
  for (const auto& c : cases) {
    const std::size_t before = mem_BlockPool::ArenaBytes();
    std::vector<std::vector<unsigned char*>> blocks(c.threads);
    std::barrier<> step(static_cast<std::ptrdiff_t>(c.threads + 1));
    std::vector<std::thread> threads;
    for (std::size_t t = 0; t < c.threads; ++t) {
      threads.emplace_back([&, t] {
        for (std::size_t i = 0; i < c.count; ++i) {
          auto* block = static_cast<unsigned char*>(mem_BlockPool::Allocate(c.size));
          std::memset(block, Mark(t, i), c.size);
          blocks[t].push_back(block);
        }
        step.arrive_and_wait();  // all allocated: the test thread checks
        step.arrive_and_wait();
        for (unsigned char* block : blocks[(t + c.freedElsewhere) % c.threads]) {
          mem_BlockPool::Free(block, c.size);
        }
      });
    }
    step.arrive_and_wait();
    std::set<unsigned char*> seen;
    std::size_t faults = 0;
    for (std::size_t t = 0; t < c.threads; ++t) {
      for (std::size_t i = 0; i < c.count; ++i) {
        unsigned char* block = blocks[t][i];
        faults += !seen.insert(block).second || reinterpret_cast<std::uintptr_t>(block) % 16 != 0 ||
                  block[0] != Mark(t, i) || block[c.size - 1] != Mark(t, i);
      }
    }
    const std::size_t peak = mem_BlockPool::ArenaBytes();
    step.arrive_and_wait();
    for (std::thread& thread : threads) thread.join();
    EXPECT_EQ(faults, 0u) << c.name << ": blocks overlap, are misaligned or were overwritten";
    if (!pooled || c.size > mem_BlockPool::MaxBlock) continue;
    const std::size_t total = c.size * c.threads * c.count;
    // Free blocks waiting in a class's shared chains (512 KiB) keep their arenas, as do the
    // two empty ones kept.
    EXPECT_GE(peak + (2u << 20), before + total) << c.name << ": the arenas are not counted";
    EXPECT_LE(mem_BlockPool::ArenaBytes(), before + (3u << 20)) << c.name << ": arenas kept";
  }
}

TEST(BlockPool, AFreedBlockIsTheNextOneOfItsClass) {
  if (!Pooled()) GTEST_SKIP() << "sanitizer build: plain operator new";
  void* first = mem_BlockPool::Allocate(40);
  mem_BlockPool::Free(first, 40);
  void* again = mem_BlockPool::Allocate(48);  // 40 and 48 share a class of 16 bytes
  EXPECT_EQ(again, first);
  mem_BlockPool::Free(again, 48);
}
