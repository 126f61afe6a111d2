#include "py_ArrayStorage.h"

py_ArrayStorage::py_ArrayStorage(std::vector<int> dims, int itemSize, std::size_t byteCount)
    : omu_PrimArrayData({}, {}, {}),
      // No zero fill: the copy that follows writes every byte.
      m_Bytes(new std::byte[byteCount == 0 ? 1 : byteCount]),
      m_Dims(std::move(dims)),
      m_Strides(m_Dims.size()) {
  int stride = itemSize;
  for (std::size_t i = m_Dims.size(); i-- > 0;) {
    m_Strides[i] = stride;
    stride *= m_Dims[i];
  }
}
