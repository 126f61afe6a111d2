#pragma once
/// \addtogroup basic
/// @{

/// \struct cow_ReflexiveEquality
/// Whether every value of T equals itself, so that two containers on one shared body are
/// equal without comparing a single element. Not so for floating point, where a NaN is unequal
/// to itself, nor perhaps for a class (a pair or a point may hold a NaN): a class answers false
/// unless it is text or its owner specialises this for it. False costs only the comparison;
/// true where it is not so would make a container holding a NaN equal to itself.
#include <atr_StringBase.h>

#include <type_traits>

template <class T>
struct cow_ReflexiveEquality
    : std::bool_constant<std::is_integral_v<T> || std::is_enum_v<T> || std::is_pointer_v<T> ||
                         std::is_base_of_v<atr_StringBase, T>> {};

/// @}
