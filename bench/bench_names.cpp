// Validating an 80-byte job name beside a regular-expression search of the same class.
#include <omu_CorvexName.h>

#include <benchmark/benchmark.h>

#include <regex>
#include <string>

namespace {
const std::string kJobName = std::string(40, 'J') + "-analysis_step_2024-final-run-00000001";

void JobName_ours(benchmark::State& state) {
  const cow_String name(kJobName);
  for (auto _ : state) {
    omu_CorvexName checked(name, omu_JOB_NAME);
    benchmark::DoNotOptimize(checked);
  }
}
BENCHMARK(JobName_ours)->Name("ValidateJobName80/ours");

void JobName_regex(benchmark::State& state) {
  const std::regex wide(R"([:\$\\&\*~! \(\)\[\]\{\}\|;\'\`\< >\?\/. ])");
  for (auto _ : state) {
    benchmark::DoNotOptimize(std::regex_search(kJobName, wide));
  }
}
BENCHMARK(JobName_regex)->Name("ValidateJobName80/std::regex_search");
}  // namespace
