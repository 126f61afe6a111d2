#include <g3d_Tensor.h>

g3d_Tensor::g3d_Tensor() noexcept = default;
