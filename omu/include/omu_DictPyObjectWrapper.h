#pragma once
/// \addtogroup omu
/// @{

/// \class omu_DictPyObjectWrapper
/// A script dictionary that crossed the boundary: its entries as a dictionary primitive,
/// plus the script object it came from, held opaquely for the host. Only the entries
/// persist (the classes are not registered; they write themselves as dictionaries).
#include <omu_PrimDictionary.h>
#include <omu_ScriptHandle.h>

template <class K>
class omu_DictPyObjectWrapper
    : public omu_PrimLeaf<omu_DictPyObjectWrapper<K>, omu_PrimDictionary<K>> {
  using Leaf = omu_PrimLeaf<omu_DictPyObjectWrapper<K>, omu_PrimDictionary<K>>;

public:
  omu_DictPyObjectWrapper() = default;
  /// The entries (shared, copy-on-write) with the script object they came from.
  omu_DictPyObjectWrapper(const omu_PrimDictionary<K>& entries, const omu_ScriptHandle& object)
      : Leaf(entries), m_Object(object) {}

  /// The script object.
  const omu_ScriptHandle& Object() const noexcept { return m_Object; }

  /// omu_DictIntPyObjectWrapper and omu_DictStrPyObjectWrapper.
  static unsigned int TypeId() noexcept { return omu_TypeId(std::is_same_v<K, int> ? 43 : 44); }

private:
  omu_ScriptHandle m_Object;
};

/// @}
