#pragma once
/// \addtogroup omu
/// @{

/// \class omu_ListPyObjectWrapper
/// A script list that crossed the boundary: its values as a list, plus the script object it
/// came from, held opaquely so that the host can write changes back to it. Only the values
/// persist (the class is not registered; it writes itself as a list).
#include <omu_PrimList.h>
#include <omu_ScriptHandle.h>

class CVX_EXPORT omu_ListPyObjectWrapper
    : public omu_PrimLeaf<omu_ListPyObjectWrapper, omu_PrimList> {
public:
  omu_ListPyObjectWrapper() : omu_PrimLeaf(0) {}
  /// The values (shared, copy-on-write) with the script object they came from.
  omu_ListPyObjectWrapper(const omu_PrimList& values, const omu_ScriptHandle& object)
      : omu_PrimLeaf(values), m_Object(object) {}

  /// The script object.
  const omu_ScriptHandle& Object() const noexcept { return m_Object; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(46); }

private:
  omu_ScriptHandle m_Object;
};

/// @}
