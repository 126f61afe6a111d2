#pragma once
/// \addtogroup basic
/// @{

/// \file
/// Type identifiers: module number in the high 16 bits, class number in the low 16 bits.

/// A type identifier from its module and class number.
constexpr unsigned int cls_MakeTypeId(unsigned int module, unsigned int classNumber) noexcept {
  return (module << 16) | (classNumber & 0xFFFFu);
}
/// The module number of a type identifier.
constexpr unsigned int cls_ModuleOf(unsigned int typeId) noexcept { return typeId >> 16; }
/// The class number of a type identifier.
constexpr unsigned int cls_ClassOf(unsigned int typeId) noexcept { return typeId & 0xFFFFu; }

/// The root of every class chain (module 0, class 1): it has no parent.
constexpr unsigned int cls_RootTypeId = cls_MakeTypeId(0, 1);
/// The BasicUtils library's own modules.
constexpr unsigned int cls_ExceptionModule = 31;
/// The containers' module (cls_xcList, cls_xcMap).
constexpr unsigned int cls_ContainerModule = 35;

/// @}
