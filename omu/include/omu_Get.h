#pragma once
/// \addtogroup omu
/// @{

/// \file
/// Reading collections out of argument lists, for command code. Instantiated for int, double
/// and cow_String elements (omu_GetIrregular for double only).
///
/// A list argument is read as a tuple; if that read failed the failure stays recorded in the
/// source for its own End. Otherwise the elements are read one by one and the inner tuple is
/// closed at once, so a wrong element raises from it (with the inner tuple's position).
#include <CVX_Export.h>
#include <cow_2DArray.h>
#include <cow_List.h>
#include <cow_String.h>

class omu_Arguments;
class omu_PrimTuple;

/// A list of T: the value must be a tuple or list whose elements T takes (see the file), read
/// from source at its cursor or from args by position or keyword.
///@{
template <class T>
CVX_EXPORT void omu_Get(omu_PrimTuple& source, cow_List<T>& out);
template <class T>
CVX_EXPORT void omu_Get(omu_Arguments& args, cow_List<T>& out, const cow_String& keyword);
///@}
/// A tuple of rows of equal length: the first row fixes the column count, and a row of another
/// length raises at its own End. An empty first row leaves out unchanged.
///@{
template <class T>
CVX_EXPORT void omu_Get(omu_PrimTuple& source, cow_2DArray<T>& out);
template <class T>
CVX_EXPORT void omu_Get(omu_Arguments& args, cow_2DArray<T>& out, const cow_String& keyword);
///@}
/// Rows of any lengths. Stored without loss in a rows x (1 + longest) array: column 0 holds the
/// row's length, columns 1.. its values, and the rest of a shorter row is 0.
///@{
template <class T>
CVX_EXPORT void omu_GetIrregular(omu_PrimTuple& source, cow_2DArray<T>& out);
template <class T>
CVX_EXPORT void omu_GetIrregular(omu_Arguments& args, cow_2DArray<T>& out,
                                 const cow_String& keyword);
///@}

/// @}
