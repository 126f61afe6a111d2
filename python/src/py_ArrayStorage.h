#pragma once
// The numbers of an array that came from NumPy: one uninitialised block filled by a single
// bulk copy of the NumPy buffer (a strided buffer is gathered into C order by that same copy).
// Arrays made on it share it like any other omu_PrimArrayData, so the library's copies and
// sub-arrays never copy it again.
#include <omu_PrimArrayData.h>

#include <cstddef>
#include <memory>
#include <vector>

class py_ArrayStorage : public omu_PrimArrayData {
public:
  // Room for byteCount bytes laid out by dims in C order, elements of itemSize bytes.
  py_ArrayStorage(std::vector<int> dims, int itemSize, std::size_t byteCount);

  std::byte* Data() noexcept override { return m_Bytes.get(); }

private:
  std::unique_ptr<std::byte[]> m_Bytes;
};
