#pragma once
// What a typed read of an argument expects, by the name argument errors show: one name per
// native type that tuples, argument lists and dictionaries read. Enumerations are named by
// their permissible values instead (omu_PrimEnumBase::TypeString).
#include <atr_String.h>
#include <cow_2DArray.h>
#include <cow_List.h>
#include <cow_Map.h>
#include <cow_String.h>

#include <type_traits>

class omi_complex;
class omu_CorvexName;
class omu_ListPyObjectWrapper;
class omu_PrimArray;
class omu_PrimNone;
class omu_PrimPath;
class omu_PrimTuple;
class omu_PrimType;
template <class K>
class omu_DictPyObjectWrapper;
template <class K>
class omu_PrimDictionary;
class utl_FilePath;

template <class T>
using omu_ReadType = std::type_identity<T>;

constexpr const char* omu_ReadTypeName(omu_ReadType<omu_ListPyObjectWrapper>) { return "list"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_DictPyObjectWrapper<cow_String>>) {
  return "dictionary with string keys";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_DictPyObjectWrapper<int>>) {
  return "dictionary with integer keys";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_Map<cow_String, float>>) {
  return "dictionary with string keys";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_2DArray<cow_String>>) {
  return "sequence of sequences of string";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_2DArray<double>>) {
  return "sequence of sequences of float";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_List<double>>) { return "sequence of float"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_List<float>>) { return "sequence of float"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_List<atr_String>>) {
  return "sequence of string";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_List<cow_String>>) {
  return "sequence of string";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_List<bool>>) { return "sequence of Boolean"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_List<int>>) { return "sequence of int"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_PrimType>) { return "type"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_PrimNone>) { return "None"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_PrimArray>) { return "omu_PrimArray"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_PrimDictionary<cow_String>>) {
  return "dictionary with string keys";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_PrimDictionary<int>>) {
  return "dictionary with integer keys";
}
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_PrimTuple>) { return "PrimSequence"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_PrimPath>) { return "path"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<utl_FilePath>) { return "string"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omi_complex>) { return "complex"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<atr_String>) { return "string"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<cow_String>) { return "string"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<omu_CorvexName>) { return "string"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<double>) { return "float"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<unsigned int>) { return "int"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<int>) { return "int"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<short>) { return "int"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<signed char>) { return "int"; }
constexpr const char* omu_ReadTypeName(omu_ReadType<bool>) { return "Boolean"; }
