#include <omi_complex.h>
#include <omu_PrimBoolean.h>
#include <omu_PrimComplex.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimEnumBase.h>
#include <omu_PrimMake.h>
#include <omu_PrimNumber.h>
#include <omu_PrimString.h>
#include <omu_PrimTuple.h>
#include <utl_FilePath.h>

namespace {
template <class T>
omu_PrimOwner Owner(T&& value) {
  return std::make_unique<std::decay_t<T>>(std::forward<T>(value));
}

// A tuple of the primitives made from count items from first on (iterators, so that a
// list of bool, whose items are not addressable, reads the same way).
template <class Iterator>
omu_PrimOwner Tuple(Iterator first, int count) {
  auto tuple = std::make_unique<omu_PrimTuple>(count);
  for (int i = 0; i < count; ++i, ++first) tuple->Put(omu_PrimMake(*first).release());
  return tuple;
}

template <class T>
omu_PrimOwner Tuple(const cow_List<T>& items) {
  return Tuple(items.begin(), items.Length());
}

template <class T>
omu_PrimOwner Rows(const cow_2DArray<T>& value) {
  auto rows = std::make_unique<omu_PrimTuple>(value.Rows());
  for (int r = 0; r < value.Rows(); ++r) {
    const T* row = value.Cells().data() + static_cast<std::size_t>(r) * static_cast<std::size_t>(value.Columns());
    rows->Put(Tuple(row, value.Columns()).release());
  }
  return rows;
}
}  // namespace

omu_PrimOwner omu_PrimMake(int value) { return Owner(omu_PrimNumber(value)); }
omu_PrimOwner omu_PrimMake(unsigned int value) { return Owner(omu_PrimNumber(value)); }
omu_PrimOwner omu_PrimMake(short value) { return Owner(omu_PrimNumber(value)); }
omu_PrimOwner omu_PrimMake(signed char value) { return Owner(omu_PrimNumber(value)); }
omu_PrimOwner omu_PrimMake(float value) { return Owner(omu_PrimNumber(value)); }
omu_PrimOwner omu_PrimMake(double value) { return Owner(omu_PrimNumber(value)); }
omu_PrimOwner omu_PrimMake(bool value) { return Owner(omu_PrimBoolean(value)); }
omu_PrimOwner omu_PrimMake(const char* value) { return Owner(omu_PrimString(cow_String(value))); }
omu_PrimOwner omu_PrimMake(const cow_String& value) { return Owner(omu_PrimString(value)); }
omu_PrimOwner omu_PrimMake(const atr_String& value) { return Owner(omu_PrimString(cow_String(value))); }
omu_PrimOwner omu_PrimMake(const utl_FilePath& value) { return Owner(omu_PrimString(value.Text())); }
omu_PrimOwner omu_PrimMake(const omi_complex& value) { return Owner(omu_PrimComplex(value)); }
omu_PrimOwner omu_PrimMake(const omu_Primitive& value) { return omu_PrimOwner(value.Copy()); }

omu_PrimOwner omu_PrimMake(const cow_List<int>& value) { return Tuple(value); }
omu_PrimOwner omu_PrimMake(const cow_List<bool>& value) { return Tuple(value); }
omu_PrimOwner omu_PrimMake(const cow_List<float>& value) { return Tuple(value); }
omu_PrimOwner omu_PrimMake(const cow_List<double>& value) { return Tuple(value); }
omu_PrimOwner omu_PrimMake(const cow_List<cow_String>& value) { return Tuple(value); }
omu_PrimOwner omu_PrimMake(const cow_List<atr_String>& value) { return Tuple(value); }
omu_PrimOwner omu_PrimMake(const cow_List<omu_PrimEnumBase>& value) {
  return Tuple(value);
}
omu_PrimOwner omu_PrimMake(const cow_2DArray<double>& value) { return Rows(value); }
omu_PrimOwner omu_PrimMake(const cow_2DArray<cow_String>& value) { return Rows(value); }

omu_PrimOwner omu_PrimMake(const cow_Map<cow_String, float>& value) {
  auto dictionary = std::make_unique<omu_PrimDictionary<cow_String>>();
  for (const auto& [key, number] : value) dictionary->Put(number, key);
  return dictionary;
}
