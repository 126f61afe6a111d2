#pragma once
// Reading native values out of primitives, shared by the argument reader (omu_PrimTuple)
// and the typed reads of dictionaries. Each answers false, leaving out untouched, when the
// value is null or not of an accepted kind:
//   int, short, signed char   any integer number (the tuple narrows to its own data type)
//   unsigned int              a UINT number, or another integer number that is not negative
//   double, float             any number
//   bool                      a Boolean, or an integer number 0 or 1
//   texts, utl_FilePath       a string or translated string
//   omi_complex               a complex number or any number
//   cow_List<T>               a tuple or list whose every element converts to T
//   cow_2DArray<T>            a tuple or list of equally long tuples or lists of T
//   cow_Map<cow_String,float> a dictionary with string keys whose values are numbers
//   value classes             a value of that class (enumerations: a name out accepts)
#include <CVX_Export.h>
#include <atr_String.h>
#include <cow_2DArray.h>
#include <cow_List.h>
#include <cow_Map.h>
#include <cow_String.h>

class omi_complex;
class omu_InterfaceObj;
class omu_Primitive;
class omu_PrimArray;
class omu_PrimEnumBase;
class omu_PrimList;
class omu_PrimNone;
class omu_PrimPath;
class omu_PrimTuple;
class omu_PrimType;
class omu_PyObjectWrapper;
class omu_ListPyObjectWrapper;
template <class K>
class omu_DictPyObjectWrapper;
template <class K>
class omu_PrimDictionary;
class utl_FilePath;

CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, int& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, short& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, signed char& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, unsigned int& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, double& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, float& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, bool& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_String& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, atr_String& out);
// Lends the text of the string value.
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, const char*& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, utl_FilePath& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omi_complex& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_List<int>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_List<double>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_List<float>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_List<bool>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_List<cow_String>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_List<atr_String>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_2DArray<double>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_2DArray<cow_String>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, cow_Map<cow_String, float>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimArray& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimEnumBase& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimDictionary<cow_String>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimDictionary<int>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimTuple& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimList& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimNone& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimPath& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_PrimType& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, const omu_PyObjectWrapper*& out);
// Lends the interface object.
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, const omu_InterfaceObj*& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, const omu_ListPyObjectWrapper*& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_ListPyObjectWrapper& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_DictPyObjectWrapper<int>& out);
CVX_EXPORT bool omu_PrimConvert(const omu_Primitive* value, omu_DictPyObjectWrapper<cow_String>& out);
