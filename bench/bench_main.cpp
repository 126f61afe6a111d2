// Runs every benchmark, then prints, for each pair named "<case>/ours" and "<case>/peer...",
// the time of ours divided by the time of each peer (below 1: ours is faster). The times are
// CPU times, which other processes on a shared machine disturb far less than wall-clock
// times; with --benchmark_repetitions, the medians. A row that counts bytes per element
// (bench_memory.cpp) compares those instead.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <map>
#include <string>
#include <vector>

namespace {
class RatioReporter : public benchmark::ConsoleReporter {
public:
  void ReportRuns(const std::vector<Run>& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
      if ((run.run_type != Run::RT_Iteration && !median) || run.error_occurred) continue;
      const std::string name = run.run_name.str();
      const auto slash = name.find('/');
      if (slash == std::string::npos) continue;
      const auto bytes = run.counters.find("bytes_per_element");
      // The side ends at a further slash, as in "/iterations:1".
      const std::string side = name.substr(slash + 1, name.find('/', slash + 1) - slash - 1);
      m_Times[name.substr(0, slash)][side] =
          bytes != run.counters.end() ? bytes->second.value : run.GetAdjustedCPUTime();
    }
  }
  void Finalize() override {
    ConsoleReporter::Finalize();
    std::printf("\n%-44s %-22s %12s\n", "case", "peer", "ours/peer (CPU time, or bytes)");
    for (const auto& [name, sides] : m_Times) {
      const auto ours = sides.find("ours");
      if (ours == sides.end()) continue;
      for (const auto& [side, time] : sides) {
        if (side == "ours" || time <= 0) continue;
        std::printf("%-44s %-22s %12.3f\n", name.c_str(), side.c_str(), ours->second / time);
      }
    }
  }

private:
  std::map<std::string, std::map<std::string, double>> m_Times;
};
}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  benchmark::Shutdown();
}
