#include <omu_Shortcut.h>

omu_Shortcut::~omu_Shortcut() = default;
