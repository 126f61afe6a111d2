#pragma once
/// \addtogroup omu
/// @{

/// \enum omu_CorvexNameEnum
/// The kinds of validated name; each has its own rule set and error code.
enum omu_CorvexNameEnum : int {
  omu_GENERAL_NAME = 0,        ///< up to 80 bytes, error "invalid name"
  omu_JOB_NAME = 1,            ///< up to 80 bytes, error "invalid job name"
  omu_MODEL_NAME = 2,          ///< up to 80 bytes, error "invalid model name"
  omu_SHORT_GENERAL_NAME = 3,  ///< up to 38 bytes, error "invalid name"
  omu_SHORT_JOB_NAME = 4,      ///< up to 38 bytes, error "invalid job name"
  omu_SHORT_MODEL_NAME = 5,    ///< up to 38 bytes, error "invalid model name"
  omu_SHORT_NAME = 6,          ///< the rules of omu_SHORT_GENERAL_NAME
  omu_LONG_NAME = 7,           ///< up to 256 bytes, error "invalid name"
};

/// @}
