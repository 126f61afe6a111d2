#include "py_ArrayStorage.h"

py_ArrayStorage::py_ArrayStorage(std::vector<int> dims, int itemSize, std::size_t byteCount)
    : omu_PrimArrayData({}, std::move(dims), itemSize),
      // No zero fill: the copy that follows writes every byte.
      m_Bytes(new std::byte[byteCount == 0 ? 1 : byteCount]) {}
