#pragma once
/// \addtogroup g3d
/// @{

/// \class g3d_Tensor
/// A named type kept for the interfaces that mention it; it holds nothing.
#include <CVX_Export.h>

class CVX_EXPORT g3d_Tensor {
public:
  g3d_Tensor() noexcept;
  ~g3d_Tensor() = default;
};

/// @}
