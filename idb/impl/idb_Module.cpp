// The idb module registers no classes: its entries only count.
#include <UTI_CaeUtils.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;
}

void idb_initialize(int& count) {
  s_Uses.Initialize(count, [] {});
}
void idb_finalize(int& count) {
  s_Uses.Finalize(count, [] {});
}
