#pragma once
// Runs work(t) for t = 0 .. threads - 1, each on a thread of its own, and waits for them all.
#include <thread>
#include <vector>

template <class Work>
void OnThreads(int threads, const Work& work) {
  std::vector<std::thread> running;
  running.reserve(static_cast<std::size_t>(threads));
  for (int t = 0; t < threads; ++t) running.emplace_back(work, t);
  for (std::thread& thread : running) thread.join();
}
