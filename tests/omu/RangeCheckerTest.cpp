#include "RaisedText.h"

#include <omu_RangeChecker.h>
#include <omu_RangeErrorException.h>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <string>
#include <utility>

namespace {
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr double kNoLower = 2.2250738585072014e-308;
constexpr double kNoUpper = 1.7976931348623157e308;

template <class Check>
std::string Outcome(const Check& check) {
  return Raised<omu_RangeErrorException>(check, "omu/impl/omu_RangeChecker");
}

// What CheckInRange and CheckGreaterThan raise for the value, or "ok"; int or double by T.
template <class T>
std::string InRange(const char* name, T lower, bool lowerIn, T value, T upper, bool upperIn) {
  return Outcome(
      [&] { omu_RangeChecker::CheckInRange(name, lower, lowerIn, value, upper, upperIn); });
}

template <class T>
std::string Above(const char* name, T lower, bool lowerIn, T value) {
  return Outcome([&] { omu_RangeChecker::CheckGreaterThan(name, lower, lowerIn, value); });
}
}  // namespace

// python/tests/test_commands.py holds the cases its commands reach.
TEST(RangeChecker, LimitsQualifiersSentinelsAndNaN) {
  const double nan = std::nan(""), inf = std::numeric_limits<double>::infinity();
  const std::pair<std::string, const char*> cases[] = {
      {InRange("n", 1, true, 1, 10, true), "ok"},
      {InRange("n", 1, true, 10, 10, false), "n must be an Integer in the range: 1 <= n < 10"},
      {InRange("n", 1, true, 11, 10, true), "n must be an Integer in the range: 1 <= n <= 10"},
      {InRange("n", kIntMin, false, 11, 10, true), "n must be an Integer <= 10"},
      {InRange("n", kIntMin, false, 11, 10, false), "n must be an Integer < 10"},
      // An inclusive sentinel is an ordinary limit.
      {InRange("n", kIntMin, true, 11, 10, true),
       "n must be an Integer in the range: -2147483648 <= n <= 10"},
      {InRange("n", 0, false, -1, kIntMax, false), "n must be an Integer > 0"},
      {InRange("n", 0, true, -1, kIntMax, true),
       "n must be an Integer in the range: 0 <= n <= 2147483647"},
      {InRange("n", kIntMin, false, kIntMin, kIntMax, false), "n must be an Integer "},
      {Above("n", 0, true, 0), "ok"},
      {InRange("t", kNoLower, false, 2.0, 1.0, false), "t must be a Float < 1"},
      {InRange("t", kNoLower, true, 2.0, 1.0, true), "t must be a Float <= 1"},
      {InRange("t", 0.5, false, 0.5, kNoUpper, true), "t must be a Float > 0.5"},
      {InRange("x", 0.0, true, 10.0, 10.0, false), "x must be a Float in the range: 0 <= x < 10"},
      // The most negative double is an ordinary limit, shown as such.
      {InRange("x", -kNoUpper, true, 3.0, 2.5, true),
       "x must be a Float in the range: -1.7976931348623157e+308 <= x <= 2.5"},
      {InRange("x", nan, false, 0.5, nan, true), "ok"},
      {InRange("x", 0.0, true, nan, 1.0, false), "ok"},
      {Above("x", 0.0, false, inf), "x must be a Float > 0"},
      {Above("x", 0.0, false, kNoUpper), "x must be a Float > 0"},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_EQ(cases[i].first, cases[i].second) << "row " << i;
}
