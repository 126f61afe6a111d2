#include <mem_BlockPool.h>

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <mutex>
#include <new>

// Under AddressSanitizer the pool stays in use and poisons what is not handed out: a free
// block, the rest of a block past the size asked for, the pages not carved yet.
#if defined(__SANITIZE_ADDRESS__)
#define MEM_POOL_POISON 1
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define MEM_POOL_POISON 1
#endif
#endif

#ifdef MEM_POOL_POISON
#include <sanitizer/asan_interface.h>
#endif

namespace {
constexpr std::size_t kAlign = 16;
constexpr std::size_t kClasses = mem_BlockPool::MaxBlock / kAlign;
// Pages are aligned so that a block finds its arena from its own address; an arena takes one
// page more than it carves, lost to that alignment and its header, which may cost it a page
// too. A class's first arenas are small, so that a few values of a kind cost little, and they
// double up to kMaxPages.
constexpr std::size_t kPage = 4096;
constexpr std::size_t kMaxPages = 64;
// Threads trade free blocks with the shared lists in chains of kBatch, each thread keeping at
// most two; up to kChainBytes of chains per class wait there for the next thread that needs
// them, and the rest go back to their arenas.
constexpr int kBatch = 128;
constexpr std::size_t kChainBytes = std::size_t{512} << 10;
constexpr std::size_t kMaxChains = kChainBytes / (kBatch * kAlign);
constexpr int kKeptEmpty = 2;

struct Block {
  Block* next;
};

// What a caller may not touch is poisoned, so that AddressSanitizer reports the access; the
// pool opens a free block's link only for as long as it reads or writes it.
void Poison([[maybe_unused]] const void* at, [[maybe_unused]] std::size_t bytes) noexcept {
#ifdef MEM_POOL_POISON
  ASAN_POISON_MEMORY_REGION(at, bytes);
#endif
}

void Unpoison([[maybe_unused]] const void* at, [[maybe_unused]] std::size_t bytes) noexcept {
#ifdef MEM_POOL_POISON
  ASAN_UNPOISON_MEMORY_REGION(at, bytes);
#endif
}

Block* NextOf(Block* block) noexcept {
  Unpoison(block, sizeof(Block));
  Block* next = block->next;
  Poison(block, sizeof(Block));
  return next;
}

void SetNext(Block* block, Block* next) noexcept {
  Unpoison(block, sizeof(Block));
  block->next = next;
  Poison(block, sizeof(Block));
}

struct Arena;

// The head of each page.
struct alignas(kAlign) Page {
  Arena* arena;
};

// Lives at the start of its own allocation.
struct Arena {
  Arena* prev = nullptr;  // the links in its class's list of arenas with room
  Arena* next = nullptr;
  bool listed = false;
  std::size_t bytes = 0;
  Block* free = nullptr;  // blocks given back
  char* bump = nullptr;   // the rest of the page being carved
  char* bumpEnd = nullptr;
  char* nextPage = nullptr;  // the pages not carved yet
  char* endPage = nullptr;
  std::size_t used = 0;  // blocks out: with callers, in threads' lists or in waiting chains

  bool HasRoom() const noexcept { return free || bump != bumpEnd || nextPage != endPage; }
};

// One size class, shared by all threads.
struct Shared {
  std::mutex lock;
  std::size_t size = 0;
  std::size_t maxChains = 0;
  Block* chains[kMaxChains] = {};  // full chains of kBatch blocks, waiting
  std::size_t chainCount = 0;
  Arena* head = nullptr;  // arenas with room; blocks are taken from the first
  Arena* tail = nullptr;
  std::size_t arenas = 0;
  int empty = 0;         // listed arenas with no block out
  bool closing = false;  // the program is ending: nothing waits, an arena goes back once empty
};

// A thread's free blocks of one class: a list, a full chain spare, then a run not carved
// into blocks yet. room is what the list takes before it moves to the spare; 0 in a thread
// that has not armed its flush, so that its first free arms it.
struct Cache {
  Block* head;
  int room;
  Block* spare;
  char* bump;
  char* bumpEnd;
};

struct ThreadLists {
  Cache caches[kClasses];
  bool armed;
  bool closed;  // the thread's lists are flushed: every block goes to the arenas directly
};

std::atomic<std::size_t> s_ArenaBytes{0};

struct Teardown {
  ~Teardown();
};

// Never destroyed: blocks are still freed while statics are torn down. What the classes keep
// for later goes back at exit, so that neither LeakSanitizer nor valgrind finds it lost.
Shared* Classes() {
  static Shared* const classes = [] {
    auto* made = new Shared[kClasses];
    for (std::size_t i = 0; i < kClasses; ++i) {
      made[i].size = (i + 1) * kAlign;
      made[i].maxChains = kChainBytes / (kBatch * made[i].size);
    }
    return made;
  }();
  static const Teardown teardown;
  return classes;
}

// Trivially destructible, so still there for frees made after the flush below.
thread_local ThreadLists t_Lists;

void Link(Shared& shared, Arena* arena, bool atHead) noexcept {
  arena->listed = true;
  arena->prev = atHead ? nullptr : shared.tail;
  arena->next = atHead ? shared.head : nullptr;
  (arena->prev ? arena->prev->next : shared.head) = arena;
  (arena->next ? arena->next->prev : shared.tail) = arena;
}

void Unlink(Shared& shared, Arena* arena) noexcept {
  arena->listed = false;
  (arena->prev ? arena->prev->next : shared.head) = arena->next;
  (arena->next ? arena->next->prev : shared.tail) = arena->prev;
}

Arena* NewArena(Shared& shared) {
  const std::size_t pages =
      std::min(kMaxPages, std::size_t{2} << std::min<std::size_t>(shared.arenas, 5));
  const std::size_t bytes = (pages + 1) * kPage;
  char* raw = static_cast<char*>(::operator new(bytes));
  auto* arena = new (raw) Arena();
  arena->bytes = bytes;
  const auto first =
      (reinterpret_cast<std::uintptr_t>(raw + sizeof(Arena)) + kPage - 1) & ~(kPage - 1);
  arena->nextPage = raw + (first - reinterpret_cast<std::uintptr_t>(raw));
  arena->endPage = arena->nextPage + (raw + bytes - arena->nextPage) / kPage * kPage;
  Poison(arena->nextPage, static_cast<std::size_t>(arena->endPage - arena->nextPage));
  Link(shared, arena, true);
  ++shared.arenas;
  ++shared.empty;
  s_ArenaBytes.fetch_add(bytes, std::memory_order_relaxed);
  return arena;
}

void CarvePage(Arena* arena, std::size_t size) noexcept {
  Unpoison(arena->nextPage, sizeof(Page));
  auto* page = reinterpret_cast<Page*>(arena->nextPage);
  page->arena = arena;
  arena->bump = arena->nextPage + sizeof(Page);
  arena->bumpEnd = arena->bump + (kPage - sizeof(Page)) / size * size;
  arena->nextPage += kPage;
}

// Up to limit blocks from an arena into cache, which is empty; answers how many went to
// its list. The lock is held.
int Take(Shared& shared, Cache& cache, int limit) {
  Arena* arena = shared.head ? shared.head : NewArena(shared);
  if (arena->used == 0) --shared.empty;
  int taken = 0;
  int listed = 0;
  if (arena->free) {
    Block* last = arena->free;
    for (taken = 1; taken < limit && NextOf(last); ++taken) last = NextOf(last);
    cache.head = arena->free;
    arena->free = NextOf(last);
    SetNext(last, nullptr);
    listed = taken;
  } else {
    if (arena->bump == arena->bumpEnd) CarvePage(arena, shared.size);
    taken = static_cast<int>(std::min<std::size_t>(static_cast<std::size_t>(limit),
                                                   (arena->bumpEnd - arena->bump) / shared.size));
    cache.bump = arena->bump;
    cache.bumpEnd = arena->bump += taken * shared.size;
  }
  arena->used += static_cast<std::size_t>(taken);
  if (!arena->HasRoom()) Unlink(shared, arena);
  return listed;
}

// An arena with no block out back to operator delete. The lock is held.
void Drop(Shared& shared, Arena* arena) noexcept {
  Unlink(shared, arena);
  --shared.arenas;
  s_ArenaBytes.fetch_sub(arena->bytes, std::memory_order_relaxed);
  const std::size_t bytes = arena->bytes;
  arena->~Arena();
  Unpoison(arena, bytes);
  ::operator delete(static_cast<void*>(arena));
}

// Back to its arena, which goes back to operator delete once all of it is free, beyond the
// few kept. The lock is held.
void Give(Shared& shared, Block* block) noexcept {
  // A block's page starts at its address rounded down to the page size.
  // NOLINTNEXTLINE(performance-no-int-to-ptr)
  auto* page = reinterpret_cast<Page*>(reinterpret_cast<std::uintptr_t>(block) & ~(kPage - 1));
  Arena* arena = page->arena;
  SetNext(block, arena->free);
  arena->free = block;
  if (!arena->listed) Link(shared, arena, false);
  if (--arena->used > 0) return;
  if (shared.empty < kKeptEmpty && !shared.closing) {
    ++shared.empty;
    return;
  }
  Drop(shared, arena);
}

void GiveList(Shared& shared, Block* list) noexcept {
  while (list) {
    Block* next = NextOf(list);
    Give(shared, list);
    list = next;
  }
}

// A full chain waits for the next thread that needs one, while there is room for it.
void GiveChain(Shared& shared, Block* chain) noexcept {
  if (shared.chainCount < shared.maxChains && !shared.closing) {
    shared.chains[shared.chainCount++] = chain;
  } else {
    GiveList(shared, chain);
  }
}

// Every block of the thread's lists back to the arenas, when the thread ends.
struct Flush {
  bool armed = false;
  ~Flush() {
    t_Lists.closed = true;
    for (std::size_t i = 0; i < kClasses; ++i) {
      Cache& cache = t_Lists.caches[i];
      Shared& shared = Classes()[i];
      const std::lock_guard<std::mutex> hold(shared.lock);
      GiveList(shared, cache.head);
      GiveList(shared, cache.spare);
      for (char* at = cache.bump; at != cache.bumpEnd; at += shared.size) {
        Give(shared, reinterpret_cast<Block*>(at));
      }
      cache = Cache{};
    }
  }
};

thread_local Flush t_Flush;

// Runs after the main thread's Flush: the waiting chains and the empty arenas kept go back,
// and from then on every arena goes back as soon as it empties.
Teardown::~Teardown() {
  for (std::size_t i = 0; i < kClasses; ++i) {
    Shared& shared = Classes()[i];
    const std::lock_guard<std::mutex> hold(shared.lock);
    shared.closing = true;
    while (shared.chainCount > 0) GiveList(shared, shared.chains[--shared.chainCount]);
    for (Arena* arena = shared.head; arena;) {
      Arena* next = arena->next;
      if (arena->used == 0) {
        --shared.empty;
        Drop(shared, arena);
      }
      arena = next;
    }
  }
}

void Arm() {
  t_Flush.armed = true;  // the first use registers its destructor for the thread's end
  t_Lists.armed = true;
}

void* Pop(Cache& cache, std::size_t size) noexcept {
  if (Block* block = cache.head) {
    cache.head = NextOf(block);
    ++cache.room;
    return block;
  }
  if (cache.bump == cache.bumpEnd) return nullptr;
  void* block = cache.bump;
  cache.bump += size;
  return block;
}

[[gnu::noinline]] void* Refill(std::size_t index) {
  Cache& cache = t_Lists.caches[index];
  Shared& shared = Classes()[index];
  if (cache.spare) {
    cache.head = cache.spare;
    cache.spare = nullptr;
    cache.room = 0;
    return Pop(cache, shared.size);
  }
  const bool closed = t_Lists.closed;
  if (!closed && !t_Lists.armed) Arm();
  {
    const std::lock_guard<std::mutex> hold(shared.lock);
    if (!closed && shared.chainCount > 0) {
      cache.head = shared.chains[--shared.chainCount];
      cache.room = 0;
    } else {
      cache.room = (closed ? 0 : kBatch) - Take(shared, cache, closed ? 1 : kBatch);
    }
  }
  return Pop(cache, shared.size);
}

// The list is full (or the thread unarmed or closed): it becomes the spare, and the spare
// goes to the shared chains.
[[gnu::noinline]] void Drain(std::size_t index) noexcept {
  Cache& cache = t_Lists.caches[index];
  if (!t_Lists.closed && !t_Lists.armed) {
    Arm();
    cache.room = kBatch - 1;
    return;
  }
  Shared& shared = Classes()[index];
  if (t_Lists.closed) {
    const std::lock_guard<std::mutex> hold(shared.lock);
    GiveList(shared, cache.head);
    cache.head = nullptr;
    cache.room = 0;
    return;
  }
  Block* given = cache.spare;
  cache.spare = cache.head;
  cache.head = nullptr;
  cache.room = kBatch;
  if (!given) return;
  const std::lock_guard<std::mutex> hold(shared.lock);
  GiveChain(shared, given);
}
}  // namespace

void* mem_BlockPool::Allocate(std::size_t size) {
  if (size - 1 >= MaxBlock) return ::operator new(size);
  const std::size_t index = (size - 1) / kAlign;
  void* block = Pop(t_Lists.caches[index], (index + 1) * kAlign);
  if (!block) block = Refill(index);
  Unpoison(block, size);
  return block;
}

void mem_BlockPool::Free(void* block, std::size_t size) noexcept {
  if (!block) return;
  if (size - 1 >= MaxBlock) {
    ::operator delete(block);
    return;
  }
  const std::size_t index = (size - 1) / kAlign;
  Cache& cache = t_Lists.caches[index];
  auto* freed = static_cast<Block*>(block);
#ifdef MEM_POOL_POISON
  // A block freed twice is poisoned already: this read has AddressSanitizer report it.
  (void)*static_cast<volatile char*>(block);
#endif
  Poison(freed, (index + 1) * kAlign);
  SetNext(freed, cache.head);
  cache.head = freed;
  if (--cache.room <= 0) Drain(index);
}

std::size_t mem_BlockPool::ArenaBytes() noexcept {
  return s_ArenaBytes.load(std::memory_order_relaxed);
}
