#include <thr_ThreadSingleton.h>

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace {
std::atomic<int> g_Alive{0};
struct PerThread {
  PerThread() { ++g_Alive; }
  ~PerThread() { --g_Alive; }
  int value = 0;
};
}  // namespace

TEST(ThreadSingleton, EachThreadHasItsOwnInstanceUntilItEnds) {
  thr_ThreadSingleton<PerThread>::Instance().value = 1;
  std::thread other([] {
    EXPECT_EQ(thr_ThreadSingleton<PerThread>::Peek(), nullptr);
    EXPECT_EQ(thr_ThreadSingleton<PerThread>::Instance().value, 0);
    EXPECT_EQ(g_Alive.load(), 2);
  });
  other.join();
  EXPECT_EQ(g_Alive.load(), 1);  // the other thread's instance went with it
  EXPECT_EQ(thr_ThreadSingleton<PerThread>::Instance().value, 1);
  thr_ThreadSingletonRegistry::CleanupThisThread();
  EXPECT_EQ(thr_ThreadSingleton<PerThread>::Peek(), nullptr);
  EXPECT_EQ(g_Alive.load(), 0);
}
