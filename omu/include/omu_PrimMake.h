#pragma once
// The primitive that carries a native value, shared by the Put operations of tuples and
// dictionaries: numbers by their data type (int INT, unsigned int UINT, short SHORT,
// signed char SCHAR, float FLOAT, double DOUBLE), bool a Boolean, texts and file paths
// strings, lists and two-dimensional arrays nested tuples, a string-to-float map a
// dictionary with string keys, and any primitive its copy.
#include <CVX_Export.h>
#include <atr_String.h>
#include <cow_2DArray.h>
#include <cow_List.h>
#include <cow_Map.h>
#include <cow_String.h>

#include <memory>

class omi_complex;
class omu_Primitive;
class omu_PrimEnumBase;
class utl_FilePath;

using omu_PrimOwner = std::unique_ptr<omu_Primitive>;

CVX_EXPORT omu_PrimOwner omu_PrimMake(int value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(unsigned int value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(short value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(signed char value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(float value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(double value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(bool value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const char* value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_String& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const atr_String& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const utl_FilePath& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const omi_complex& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const omu_Primitive& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_List<int>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_List<bool>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_List<float>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_List<double>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_List<cow_String>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_List<atr_String>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_List<omu_PrimEnumBase>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_2DArray<double>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_2DArray<cow_String>& value);
CVX_EXPORT omu_PrimOwner omu_PrimMake(const cow_Map<cow_String, float>& value);
