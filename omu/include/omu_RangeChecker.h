#pragma once
/// \addtogroup omu
/// @{

/// \class omu_RangeChecker
/// Checks one numeric argument against optional limits and raises omu_RangeErrorException,
/// filled in for its message, when it is out of range. Note the argument order: the value
/// stands between the lower and the upper limit.
///
/// No-limit sentinels: an exclusive lower limit of INT_MIN or upper limit of INT_MAX (integers;
/// an inclusive one is still shown), and a lower limit of the smallest positive normal double or
/// an upper limit of the largest double (doubles, whatever the inclusive flag). A NaN value
/// passes every test. CheckGreaterThan still rejects the type's largest value.
#include <CVX_Export.h>
#include <cow_String.h>

class CVX_EXPORT omu_RangeChecker {
public:
  /// Raises unless value lies between lower and upper (each inclusive as flagged); name is the
  /// argument's name in the message.
  ///@{
  static void CheckInRange(const cow_String& name, int lower, bool lowerInclusive, int value,
                           int upper, bool upperInclusive);
  static void CheckInRange(const cow_String& name, double lower, bool lowerInclusive, double value,
                           double upper, bool upperInclusive);
  ///@}
  /// Raises unless value is above lower (or equal, when inclusive).
  ///@{
  static void CheckGreaterThan(const cow_String& name, int lower, bool lowerInclusive, int value);
  static void CheckGreaterThan(const cow_String& name, double lower, bool lowerInclusive,
                               double value);
  ///@}
};

/// @}
