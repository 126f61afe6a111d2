#include <g3d_Marker.h>

g3d_Marker::g3d_Marker() noexcept = default;
