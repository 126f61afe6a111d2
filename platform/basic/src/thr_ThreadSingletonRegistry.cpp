#include <thr_ThreadSingletonRegistry.h>

#include <vector>

namespace {
struct ThreadCleanups {
  std::vector<thr_ThreadSingletonRegistry::Cleanup> cleanups;
  ~ThreadCleanups() { Run(); }
  void Run() noexcept {
    while (!cleanups.empty()) {
      const auto cleanup = cleanups.back();
      cleanups.pop_back();
      cleanup();
    }
  }
};
thread_local ThreadCleanups t_Cleanups;
}  // namespace

void thr_ThreadSingletonRegistry::Register(Cleanup cleanup) { t_Cleanups.cleanups.push_back(cleanup); }

void thr_ThreadSingletonRegistry::CleanupThisThread() noexcept { t_Cleanups.Run(); }
