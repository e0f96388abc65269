// The output steps of a direct nonlinear history case: whole-number
// division by the whole part of the largest step, 0 where it has no result.
#include <gtest/gtest.h>

#include <climits>
#include <limits>

#include "dynamics/time_history.h"

namespace {

TEST(DirectOutputSteps, DividesWholePartsAndGivesZeroWithoutAResult) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  const double inf = std::numeric_limits<double>::infinity();
  struct Case {
    const char* name;
    double outSteps, dtMax;
    int want;
  };
  for (const Case& c : {
           Case{"whole division", 100, 4.5, 25},
           Case{"cut toward zero", 10, -3, -3},
           Case{"negative steps", -7, 2, -3},
           Case{"a step below 1 has whole part 0", 10, 0.5, 0},
           Case{"a step of 0", 10, 0, 0},
           Case{"a step just above -1", 10, -0.999, 0},
           Case{"lowest whole number by -1", -2147483648.0, -1, 0},
           Case{"lowest whole number by -1.5", -2147483648.0, -1.5, 0},
           Case{"lowest whole number by itself", -2147483648.0, -2147483648.5, 1},
           Case{"steps beyond the range read as the lowest", 1e300, 2, INT_MIN / 2},
           Case{"a NaN step reads as the lowest", 10, nan, 0},
           Case{"an infinite step reads as the lowest", -2147483648.0, inf, 1},
           Case{"NaN steps by -1", nan, -1, 0},
       }) {
    EXPECT_EQ(DirectOutputSteps(c.outSteps, c.dtMax), c.want) << c.name;
  }
}

}  // namespace
