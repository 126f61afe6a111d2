// Copy-on-write copies and class-metadata lookup beside their standard peers.
#include <UTI_CaeUtils.h>
#include <cls_MetadataRegistrar.h>
#include <cow_List.h>

#include <benchmark/benchmark.h>

#include <memory>
#include <unordered_map>
#include <vector>

namespace {
constexpr int kElements = 1'000'000;

void CopyList_ours(benchmark::State& state) {
  const cow_List<double> list(std::vector<double>(kElements, 1.5));
  for (auto _ : state) {
    cow_List<double> copy(list);
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK(CopyList_ours)->Name("CopyList1M/ours");

void CopyList_vector(benchmark::State& state) {
  const std::vector<double> vector(kElements, 1.5);
  for (auto _ : state) {
    std::vector<double> copy(vector);
    benchmark::DoNotOptimize(copy.data());
  }
}
BENCHMARK(CopyList_vector)->Name("CopyList1M/std::vector");

struct Started {
  Started() { UTI_CaeUtils_initialize(count); }
  ~Started() { UTI_CaeUtils_finalize(count); }
  int count = 0;
};

std::vector<unsigned int> RegisteredIds() {
  std::vector<unsigned int> ids;
  for (const cls_ClassMetadata* md : cls_MetadataRegistrar::Instance().Registrar().Classes()) {
    ids.push_back(md->TypeId());
  }
  return ids;
}

void Lookup_ours(benchmark::State& state) {
  Started started;
  const auto ids = RegisteredIds();
  const cls_ClassRegistrar& registrar = cls_MetadataRegistrar::Instance().Registrar();
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(registrar.Find(ids[i]));
    i = i + 1 == ids.size() ? 0 : i + 1;
  }
}
BENCHMARK(Lookup_ours)->Name("MetadataLookup/ours");

void Lookup_unordered_map(benchmark::State& state) {
  Started started;
  const auto ids = RegisteredIds();
  std::unordered_map<unsigned int, const cls_ClassMetadata*> map;
  for (const cls_ClassMetadata* md : cls_MetadataRegistrar::Instance().Registrar().Classes()) {
    map.emplace(md->TypeId(), md);
  }
  std::size_t i = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(map.find(ids[i])->second);
    i = i + 1 == ids.size() ? 0 : i + 1;
  }
}
BENCHMARK(Lookup_unordered_map)->Name("MetadataLookup/std::unordered_map");
}  // namespace
