#include "RaisedText.h"

#include <omu_RangeChecker.h>
#include <omu_RangeErrorException.h>

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

namespace {
constexpr int kIntMin = std::numeric_limits<int>::min();
constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr double kNoLower = 2.2250738585072014e-308;
constexpr double kNoUpper = 1.7976931348623157e308;

std::string Outcome(const std::function<void()>& check) {
  return Raised<omu_RangeErrorException>(check, "omu/impl/omu_RangeChecker");
}
}  // namespace

// python/tests/test_commands.py holds the cases its commands reach.
TEST(RangeChecker, IntegerLimitsAndQualifiers) {
  using R = omu_RangeChecker;
  const struct {
    int lower;
    bool lowerIn;
    int value;
    int upper;
    bool upperIn;
    const char* outcome;
  } cases[] = {
      {1, true, 1, 10, true, "ok"},
      {1, true, 10, 10, false, "n must be an Integer in the range: 1 <= n < 10"},
      {1, true, 11, 10, true, "n must be an Integer in the range: 1 <= n <= 10"},
      {kIntMin, false, 11, 10, true, "n must be an Integer <= 10"},
      {kIntMin, false, 11, 10, false, "n must be an Integer < 10"},
      // An inclusive sentinel is an ordinary limit.
      {kIntMin, true, 11, 10, true, "n must be an Integer in the range: -2147483648 <= n <= 10"},
      {0, false, -1, kIntMax, false, "n must be an Integer > 0"},
      {0, true, -1, kIntMax, true, "n must be an Integer in the range: 0 <= n <= 2147483647"},
      {kIntMin, false, kIntMin, kIntMax, false, "n must be an Integer "},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(Outcome([&] { R::CheckInRange("n", c.lower, c.lowerIn, c.value, c.upper, c.upperIn); }),
              c.outcome);
  }
  EXPECT_EQ(Outcome([] { R::CheckGreaterThan("n", 0, true, 0); }), "ok");
}

TEST(RangeChecker, FloatingLimitsSentinelsAndNaN) {
  using R = omu_RangeChecker;
  const double nan = std::nan("");
  const double inf = std::numeric_limits<double>::infinity();
  EXPECT_EQ(Outcome([] { R::CheckInRange("t", kNoLower, false, 2.0, 1.0, false); }),
            "t must be a Float < 1");
  EXPECT_EQ(Outcome([] { R::CheckInRange("t", kNoLower, true, 2.0, 1.0, true); }),
            "t must be a Float <= 1");
  EXPECT_EQ(Outcome([] { R::CheckInRange("t", 0.5, false, 0.5, kNoUpper, true); }),
            "t must be a Float > 0.5");
  EXPECT_EQ(Outcome([] { R::CheckInRange("x", 0.0, true, 10.0, 10.0, false); }),
            "x must be a Float in the range: 0 <= x < 10");
  // The most negative double is an ordinary limit, shown as such.
  EXPECT_EQ(Outcome([] { R::CheckInRange("x", -kNoUpper, true, 3.0, 2.5, true); }),
            "x must be a Float in the range: -1.7976931348623157e+308 <= x <= 2.5");
  EXPECT_EQ(Outcome([&] { R::CheckInRange("x", nan, false, 0.5, nan, true); }), "ok");
  EXPECT_EQ(Outcome([&] { R::CheckInRange("x", 0.0, true, nan, 1.0, false); }), "ok");
  EXPECT_EQ(Outcome([&] { R::CheckGreaterThan("x", 0.0, false, inf); }), "x must be a Float > 0");
  EXPECT_EQ(Outcome([&] { R::CheckGreaterThan("x", 0.0, false, kNoUpper); }), "x must be a Float > 0");
}
