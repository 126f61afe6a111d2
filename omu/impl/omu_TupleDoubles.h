#pragma once
#include <cls_DoublesSource.h>
#include <omu_PrimNumber.h>
#include <omu_PrimTuple.h>

/// \class omu_TupleDoubles
/// The first size elements of a tuple, every one a plain double, as a 1 x size block read when
/// the archive is encoded: the list is a shared copy-on-write snapshot, so later changes to the
/// tuple do not reach it, and saving a tuple of a million numbers holds no second copy of them.
class omu_TupleDoubles final : public cls_DoublesSource {
public:
  omu_TupleDoubles(cow_List<omu_PrimHandle> elements, int size)
      : m_Elements(std::move(elements)), m_Size(size) {}

  int Rows() const noexcept override { return 1; }
  int Columns() const noexcept override { return m_Size; }
  void CopyTo(std::size_t first, std::size_t count, double* out) const noexcept override {
    const omu_PrimHandle* slots = m_Elements.Vector().data() + first;
    for (std::size_t i = 0; i < count; ++i) {
      out[i] = static_cast<const omu_PrimNumber&>(*slots[i].ConstGet()).Value();
    }
  }

private:
  cow_List<omu_PrimHandle> m_Elements;
  int m_Size;
};
