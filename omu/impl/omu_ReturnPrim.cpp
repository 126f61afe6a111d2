#include <omu_PrimList.h>
#include <omu_ReturnPrim.h>

template <class T>
omu_PrimList* omu_ReturnPrim(const cow_List<T>& values) {
  auto list = std::make_unique<omu_PrimList>(values.Length());
  for (const T& value : values) list->PutValue(value);
  return list.release();
}

template <class T>
omu_PrimTuple* omu_ReturnPrim(const cow_2DArray<T>& values) {
  auto rows = std::make_unique<omu_PrimTuple>(values.Rows());
  for (int r = 0; r < values.Rows(); ++r) {
    auto row = std::make_unique<omu_PrimTuple>(values.Columns());
    for (int c = 0; c < values.Columns(); ++c) row->PutValue(values(r, c));
    rows->Put(row.release());
  }
  return rows.release();
}

template CVX_EXPORT omu_PrimList* omu_ReturnPrim(const cow_List<int>&);
template CVX_EXPORT omu_PrimList* omu_ReturnPrim(const cow_List<double>&);
template CVX_EXPORT omu_PrimList* omu_ReturnPrim(const cow_List<cow_String>&);
template CVX_EXPORT omu_PrimTuple* omu_ReturnPrim(const cow_2DArray<int>&);
template CVX_EXPORT omu_PrimTuple* omu_ReturnPrim(const cow_2DArray<double>&);
template CVX_EXPORT omu_PrimTuple* omu_ReturnPrim(const cow_2DArray<cow_String>&);
