#include <QRLBasCoreUtils.h>
#include <QRLCvuBasicUtils.h>
#include <UTI_CaeUtils.h>
#include <omi_UseCounter.h>

namespace {
omi_UseCounter s_Uses;
}

const char* UTI_CaeUtils_version() { return CVX_VERSION; }

void UTI_CaeUtils_initialize(int& count) {
  s_Uses.Initialize(count, [&count] {
    QRLBasCoreUtils_initialize(count);
    QRLCvuBasicUtils_initialize(count);
    wip_initialize(count);
    idb_initialize(count);
    g3d_initialize(count);
    omu_initialize(count);
    mdl_initialize(count);
  });
}

void UTI_CaeUtils_finalize(int& count) {
  s_Uses.Finalize(count, [&count] {
    mdl_finalize(count);
    omu_finalize(count);
    g3d_finalize(count);
    idb_finalize(count);
    wip_finalize(count);
    QRLCvuBasicUtils_finalize(count);
    QRLBasCoreUtils_finalize(count);
  });
}
