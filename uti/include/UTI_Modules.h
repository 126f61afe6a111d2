#pragma once
/// \addtogroup uti
/// @{

/// \file
/// Module numbers of the library's type identifiers.
#include <cls_TypeIds.h>

/// The module numbers of mdl, omu and g3d.
///@{
constexpr unsigned int mdl_ModuleNumber = 10;
constexpr unsigned int omu_ModuleNumber = 19;
constexpr unsigned int g3d_ModuleNumber = 36;
///@}

/// The type identifier of a class number in the module.
///@{
constexpr unsigned int mdl_TypeId(unsigned int classNumber) noexcept {
  return cls_MakeTypeId(mdl_ModuleNumber, classNumber);
}
constexpr unsigned int omu_TypeId(unsigned int classNumber) noexcept {
  return cls_MakeTypeId(omu_ModuleNumber, classNumber);
}
constexpr unsigned int g3d_TypeId(unsigned int classNumber) noexcept {
  return cls_MakeTypeId(g3d_ModuleNumber, classNumber);
}
///@}

/// @}
