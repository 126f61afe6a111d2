#include <omu_PrimVisitor.h>

omu_PrimVisitor::~omu_PrimVisitor() = default;
