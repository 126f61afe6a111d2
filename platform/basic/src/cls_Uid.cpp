#include <cls_Uid.h>

#include <atomic>

cls_Uid cls_Uid::AllocateUid() noexcept {
  static std::atomic<std::uint64_t> next{1};
  return cls_Uid(next.fetch_add(1, std::memory_order_relaxed));
}
