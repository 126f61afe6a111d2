#pragma once
/// \addtogroup omu
/// @{

/// \file
/// Results for scripts built from native collections: a new list (or a tuple of row tuples)
/// owned by the caller, one number (double: float DOUBLE, int: INT) or string per element.
/// Instantiated for int, double and cow_String.
#include <CVX_Export.h>
#include <cow_2DArray.h>
#include <cow_List.h>

class omu_PrimList;
class omu_PrimTuple;

/// A list of the values, or a tuple of one tuple per row; owned by the caller.
///@{
template <class T>
CVX_EXPORT omu_PrimList* omu_ReturnPrim(const cow_List<T>& values);
template <class T>
CVX_EXPORT omu_PrimTuple* omu_ReturnPrim(const cow_2DArray<T>& values);
///@}

/// @}
