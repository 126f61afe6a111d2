#pragma once
// The buffers behind numeric arrays, owned together: the numbers, the dimensions and the
// strides. Arrays, their copies and their sub-arrays share one through a counted handle.
#include <CVX_Export.h>

#include <cstddef>
#include <vector>

class CVX_EXPORT omu_PrimArrayData {
public:
  omu_PrimArrayData(std::vector<std::byte> data, std::vector<int> dims, std::vector<int> strides)
      : m_Data(std::move(data)), m_Dims(std::move(dims)), m_Strides(std::move(strides)) {}
  virtual ~omu_PrimArrayData();

  std::byte* Data() noexcept { return m_Data.data(); }
  const int* Dims() const noexcept { return m_Dims.data(); }
  const int* Strides() const noexcept { return m_Strides.data(); }

private:
  std::vector<std::byte> m_Data;
  std::vector<int> m_Dims;
  std::vector<int> m_Strides;
};
