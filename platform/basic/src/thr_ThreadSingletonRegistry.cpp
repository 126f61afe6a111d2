#include <thr_ThreadSingletonRegistry.h>

#include <utility>
#include <vector>

#if defined(__MINGW32__)
#include <pthread.h>
#endif

namespace {
struct ThreadCleanups {
  std::vector<std::pair<thr_ThreadSingletonRegistry::Cleanup, void*>> cleanups;
  ~ThreadCleanups() { Run(); }
  void Run() noexcept {
    while (!cleanups.empty()) {
      const auto [cleanup, object] = cleanups.back();
      cleanups.pop_back();
      cleanup(object);
    }
  }
};
#if defined(__MINGW32__)
// MinGW runs the destructor of a thread_local object in a DLL only after a join on its thread
// has returned, if at all; a thread key's destructor runs as the thread ends.
void EndOfThread(void* cleanups) { delete static_cast<ThreadCleanups*>(cleanups); }

ThreadCleanups& ThisThread() {
  static const pthread_key_t key = [] {
    pthread_key_t made{};
    pthread_key_create(&made, &EndOfThread);
    return made;
  }();
  auto* cleanups = static_cast<ThreadCleanups*>(pthread_getspecific(key));
  if (!cleanups) {
    cleanups = new ThreadCleanups;
    pthread_setspecific(key, cleanups);
  }
  return *cleanups;
}
#else
ThreadCleanups& ThisThread() {
  thread_local ThreadCleanups cleanups;
  return cleanups;
}
#endif
}  // namespace

void thr_ThreadSingletonRegistry::Register(Cleanup cleanup, void* object) {
  ThisThread().cleanups.emplace_back(cleanup, object);
}

void thr_ThreadSingletonRegistry::CleanupThisThread() noexcept { ThisThread().Run(); }
