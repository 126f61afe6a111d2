#include <omu_PrimArrayData.h>

omu_PrimArrayData::omu_PrimArrayData(std::vector<std::byte> data, std::vector<int> dims,
                                     int itemSize)
    : m_Data(std::move(data)), m_Dims(std::move(dims)), m_Strides(m_Dims.size()) {
  int stride = itemSize;
  for (std::size_t d = m_Dims.size(); d-- > 0;) {
    m_Strides[d] = stride;
    stride *= m_Dims[d];
  }
}

omu_PrimArrayData::~omu_PrimArrayData() = default;
