#include <omu_PrimArrayData.h>

omu_PrimArrayData::~omu_PrimArrayData() = default;
