#pragma once
/// \addtogroup omu
/// @{

/// \enum omu_BindingRuleEnum
/// Which values a typed read takes (see omu_Binding). A read by position takes a number only
/// of exactly the native type's own integer kind (an int only an INT number); a read by
/// keyword or from a dictionary converts from any integer kind. The rules differ only there.
enum omu_BindingRuleEnum : int {
  omu_BINDING_EXACT = 0,
  omu_BINDING_CONVERTING = 1,
};

/// @}
