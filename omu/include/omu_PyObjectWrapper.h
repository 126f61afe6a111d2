#pragma once
/// \addtogroup omu
/// @{

/// \class omu_PyObjectWrapper
/// A script object that crosses the boundary untouched: the native side only holds it and
/// hands it back. Two wrappers are equal when they hold the same object. Script objects
/// live in the interpreter, so a wrapper is not persisted (its class is not registered).
#include <omu_PrimLeaf.h>
#include <omu_Primitive.h>
#include <omu_ScriptHandle.h>

class CVX_EXPORT omu_PyObjectWrapper : public omu_PrimLeaf<omu_PyObjectWrapper, omu_Primitive> {
public:
  /// Holds object (a null handle by default).
  explicit omu_PyObjectWrapper(const omu_ScriptHandle& object = omu_ScriptHandle())
      : omu_PrimLeaf('W'), m_Object(object) {}
  /// Member-wise copy.
  ///@{
  omu_PyObjectWrapper(const omu_PyObjectWrapper&) = default;
  omu_PyObjectWrapper& operator=(const omu_PyObjectWrapper&) = default;
  ///@}

  cow_String TypeString() const override { return "PyObject"; }
  cow_String AsString(int) const override { return "PyObject object"; }
  bool operator==(const omu_Primitive& other) const override;

  /// The script object.
  const omu_ScriptHandle& Object() const noexcept { return m_Object; }

  /// The class's type identifier: module and class number (cls_MakeTypeId).
  static unsigned int TypeId() noexcept { return omu_TypeId(41); }

private:
  omu_ScriptHandle m_Object;
};

/// @}
