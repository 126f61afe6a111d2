#include <QRLBasCoreUtils.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;
}

void QRLBasCoreUtils_initialize(int& count) {
  s_Uses.Initialize(count, [] {});
}

void QRLBasCoreUtils_finalize(int& count) {
  s_Uses.Finalize(count, [] {});
}
