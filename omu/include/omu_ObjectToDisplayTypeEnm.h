#pragma once
/// \addtogroup omu
/// @{

/// \enum omu_ObjectToDisplayTypeEnm
/// The kinds of displayed object a type value can name.
enum omu_ObjectToDisplayTypeEnm : int {
  omu_DISPLAY_NONE = 0,
  omu_DISPLAY_PART = 1,
  omu_DISPLAY_ASSEMBLY = 2,
  omu_DISPLAY_SKETCH = 3,
  omu_DISPLAY_ODB = 4,
  omu_DISPLAY_XY_PLOT = 5,
  omu_DISPLAY_STUB = 6,
  omu_DISPLAY_DETAIL_PLOT = 7,
  omu_DISPLAY_UNKNOWN = 8,  ///< a name that matches none of the above
};

/// @}
