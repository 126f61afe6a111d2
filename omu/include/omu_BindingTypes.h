#pragma once
/// \addtogroup omu
/// @{

/// \file
/// The native types the library binds (omu_Binding), for code that walks them (a script
/// binding, a test) instead of listing them again. Including this completes every listed class.
/// Lists and arrays of other bound types bind as well.
#include <omu_Binding.h>
#include <omu_DictPyObjectWrapper.h>
#include <omu_InterfaceObj.h>
#include <omu_ListPyObjectWrapper.h>
#include <omu_PrimArray.h>
#include <omu_PrimDictionary.h>
#include <omu_PrimExpr.h>
#include <omu_PrimList.h>
#include <omu_PrimNone.h>
#include <omu_PrimPath.h>
#include <omu_PrimTuple.h>
#include <omu_PrimType.h>
#include <omu_PyObjectWrapper.h>
#include <omu_TypeList.h>

/// Every bound type, as one type list.
using omu_BindingTypes = omu_TypeList<
    // scalars
    int, unsigned int, short, signed char, float, double, bool, cow_String, atr_String,
    utl_FilePath, const char*, omi_complex,
    // collections
    cow_List<int>, cow_List<bool>, cow_List<float>, cow_List<double>, cow_List<cow_String>,
    cow_List<atr_String>, cow_List<omu_PrimEnumBase>, cow_2DArray<double>, cow_2DArray<cow_String>,
    cow_Map<cow_String, float>,
    // primitive classes
    omu_PrimType, omu_PrimNone, omu_PrimPath, omu_PrimExpr, omu_PrimArray, omu_PrimTuple,
    omu_PrimDictionary<int>, omu_PrimDictionary<cow_String>, omu_PrimList, omu_ListPyObjectWrapper,
    omu_DictPyObjectWrapper<int>, omu_DictPyObjectWrapper<cow_String>, omu_PrimEnumBase,
    // lent
    const omu_PyObjectWrapper*, const omu_ListPyObjectWrapper*, const omu_InterfaceObj*>;

/// @}
