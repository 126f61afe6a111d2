#include "../OnThreads.h"

#include <gtest/gtest.h>
#include <mem_BlockPool.h>

#include <algorithm>
#include <atomic>
#include <barrier>
#include <cstdint>
#include <cstring>
#include <mutex>
#include <set>
#include <thread>
#include <utility>
#include <vector>

namespace {
unsigned char Mark(std::size_t thread, std::size_t i) {
  return static_cast<unsigned char>(thread * 31 + i);
}
}  // namespace

TEST(BlockPool, AFreedBlockIsReusedAndBlocksStayDistinctAcrossThreadsAndFreeAnywhere) {
  void* first = mem_BlockPool::Allocate(40);
  mem_BlockPool::Free(first, 40);
  void* again = mem_BlockPool::Allocate(48);  // 40 and 48 share a class of 16 bytes
  EXPECT_EQ(again, first);
  mem_BlockPool::Free(again, 48);
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
    if (c.size > mem_BlockPool::MaxBlock) continue;
    const std::size_t total = c.size * c.threads * c.count;
    // Free blocks waiting in a class's shared chains (512 KiB) keep their arenas, as do the
    // two empty ones kept.
    EXPECT_GE(peak + (2u << 20), before + total) << c.name << ": the arenas are not counted";
    EXPECT_LE(mem_BlockPool::ArenaBytes(), before + (3u << 20)) << c.name << ": arenas kept";
  }
}

// Threads allocate, check and free at once, half of each round's blocks freed by the next
// thread a round later; a block handed out twice or written by the pool shows as a mark
// overwritten. (No bound on the arenas kept: which ones a waiting free block pins depends on
// the interleaving. The test above checks that arenas go back.)
TEST(BlockPool, ConcurrentChurnKeepsBlocksDistinctAndIntact) {
  constexpr int kThreads = 4;
  using Marked = std::pair<unsigned char*, unsigned char>;
  for (const std::size_t size : {1, 48, 256}) {  // the smallest, a middle and the largest class
    std::mutex lock;
    std::vector<std::vector<Marked>> mailboxes(kThreads);
    std::atomic<std::size_t> faults{0};
    const auto release = [&](const Marked& block) {
      faults += std::count(block.first, block.first + size, block.second) != std::ptrdiff_t(size);
      mem_BlockPool::Free(block.first, size);
    };
    OnThreads(kThreads, [&](int t) {
      const auto self = static_cast<std::size_t>(t);
      for (std::size_t round = 0; round < 60; ++round) {
        std::vector<Marked> live, posted;
        for (std::size_t i = 0; i < 400; ++i) {
          auto* block = static_cast<unsigned char*>(mem_BlockPool::Allocate(size));
          live.emplace_back(block, Mark(self, round + i));
          std::memset(block, live.back().second, size);
        }
        {
          const std::lock_guard<std::mutex> hold(lock);
          posted.swap(mailboxes[self]);
          auto& next = mailboxes[(self + 1) % kThreads];
          for (std::size_t i = 0; i < live.size(); i += 2) next.push_back(live[i]);
        }
        for (const Marked& block : posted) release(block);
        for (std::size_t i = 1; i < live.size(); i += 2) release(live[i]);
      }
    });
    for (const auto& mailbox : mailboxes) {
      for (const Marked& block : mailbox) release(block);
    }
    EXPECT_EQ(faults, 0u) << "size " << size
                          << ": a live block was handed out again or overwritten";
  }
}

#if defined(__SANITIZE_ADDRESS__)
// The pool poisons what no caller holds, so AddressSanitizer still reports misuse of a block.
TEST(BlockPoolDeathTest, AddressSanitizerReportsMisuseOfABlock) {
  ::testing::FLAGS_gtest_death_test_style = "threadsafe";  // a fresh process
  const struct {
    const char* name;
    void (*misuse)();
  } cases[] = {
      {"read after free",
       [] {
         auto* block = static_cast<volatile char*>(mem_BlockPool::Allocate(32));
         mem_BlockPool::Free(const_cast<char*>(block), 32);
         (void)block[8];
       }},
      {"freed twice",
       [] {
         void* block = mem_BlockPool::Allocate(32);
         mem_BlockPool::Free(block, 32);
         mem_BlockPool::Free(block, 32);
       }},
      {"past the size asked for",
       [] { static_cast<volatile char*>(mem_BlockPool::Allocate(20))[20] = 1; }},
  };
  for (const auto& c : cases) EXPECT_DEATH(c.misuse(), "use-after-poison") << c.name;
}
#endif
