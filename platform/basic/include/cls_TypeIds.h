#pragma once
/// \addtogroup basic
/// @{

/// \file
/// Type identifiers: module number in the high 16 bits, class number in the low 16 bits.
constexpr unsigned int cls_MakeTypeId(unsigned int module, unsigned int classNumber) noexcept {
  return (module << 16) | (classNumber & 0xFFFFu);
}
constexpr unsigned int cls_ModuleOf(unsigned int typeId) noexcept { return typeId >> 16; }
constexpr unsigned int cls_ClassOf(unsigned int typeId) noexcept { return typeId & 0xFFFFu; }

/// The root of every class chain (module 0, class 1): it has no parent.
constexpr unsigned int cls_RootTypeId = cls_MakeTypeId(0, 1);
/// The BasicUtils library's own modules.
constexpr unsigned int cls_ExceptionModule = 31;
constexpr unsigned int cls_ContainerModule = 35;

/// @}
