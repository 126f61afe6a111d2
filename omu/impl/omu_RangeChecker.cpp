#include <nex_Exception.h>
#include <omu_RangeChecker.h>
#include <omu_RangeErrorException.h>

#include <limits>

namespace {
constexpr const char* kSource = "omu/impl/omu_RangeChecker";

template <class T>
bool Accepts(T lower, bool lowerInclusive, T value, T upper, bool upperInclusive) {
  // Ordered comparisons only, so that a NaN value fails none of them.
  if (lowerInclusive ? lower > value : lower >= value) return false;
  if (upperInclusive ? value > upper : value >= upper) return false;
  return true;
}

int Qualifier(bool inclusive) { return inclusive ? 1 : 2; }
}  // namespace

void omu_RangeChecker::CheckInRange(const cow_String& name, int lower, bool lowerInclusive,
                                    int value, int upper, bool upperInclusive) {
  if (Accepts(lower, lowerInclusive, value, upper, upperInclusive)) return;
  constexpr int noLower = std::numeric_limits<int>::min();
  constexpr int noUpper = std::numeric_limits<int>::max();
  // An integer sentinel means "no limit" only on an exclusive side.
  const int lowerQualifier = lowerInclusive ? 1 : lower == noLower ? 0 : 2;
  const int upperQualifier = upperInclusive ? 1 : upper == noUpper ? 0 : 2;
  NEX_THROW(omu_RangeErrorException(name, 1, atr_StringBase(lower), lowerQualifier,
                                    atr_StringBase(upper), upperQualifier),
            kSource);
}

void omu_RangeChecker::CheckInRange(const cow_String& name, double lower, bool lowerInclusive,
                                    double value, double upper, bool upperInclusive) {
  if (Accepts(lower, lowerInclusive, value, upper, upperInclusive)) return;
  constexpr double noLower = std::numeric_limits<double>::min();  // smallest positive normal
  constexpr double noUpper = std::numeric_limits<double>::max();
  // A double sentinel wins over the inclusive flag.
  const int lowerQualifier = lower == noLower ? 0 : Qualifier(lowerInclusive);
  const int upperQualifier = upper == noUpper ? 0 : Qualifier(upperInclusive);
  NEX_THROW(omu_RangeErrorException(name, 2, atr_StringBase(lower), lowerQualifier,
                                    atr_StringBase(upper), upperQualifier),
            kSource);
}

void omu_RangeChecker::CheckGreaterThan(const cow_String& name, int lower, bool lowerInclusive,
                                        int value) {
  CheckInRange(name, lower, lowerInclusive, value, std::numeric_limits<int>::max(), false);
}

void omu_RangeChecker::CheckGreaterThan(const cow_String& name, double lower, bool lowerInclusive,
                                        double value) {
  CheckInRange(name, lower, lowerInclusive, value, std::numeric_limits<double>::max(), false);
}
