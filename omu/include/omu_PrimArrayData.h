#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PrimArrayData
/// The buffers behind numeric arrays, owned together: the numbers, the dimensions and the
/// C-order strides. Arrays, their copies and their sub-arrays share one through a counted handle.
/// A subclass may keep the numbers elsewhere (a host's block, filled without zeroing it first):
/// it passes no numbers here and overrides Data.
#include <CVX_Export.h>

#include <cstddef>
#include <vector>

class CVX_EXPORT omu_PrimArrayData {
public:
  /// data holds the numbers laid out by dims in C order, each itemSize bytes.
  omu_PrimArrayData(std::vector<std::byte> data, std::vector<int> dims, int itemSize);
  virtual ~omu_PrimArrayData();

  /// The numbers.
  virtual std::byte* Data() noexcept { return m_Data.data(); }
  /// The dimensions and their byte strides, one per dimension.
  ///@{
  const int* Dims() const noexcept { return m_Dims.data(); }
  const int* Strides() const noexcept { return m_Strides.data(); }
  ///@}

private:
  std::vector<std::byte> m_Data;
  std::vector<int> m_Dims;
  std::vector<int> m_Strides;
};

/// @}
