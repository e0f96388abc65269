// The angle of a spectrum load: 360 taken away while above 360, with huge
// and infinite angles cut first so that the run always ends, and quickly.
#include <gtest/gtest.h>

#include <chrono>
#include <cmath>
#include <future>
#include <limits>
#include <memory>
#include <vector>
#include <thread>

#include "dynamics/response_spectrum.h"

namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct AngleCase {
  double angle;
  double reduced;  // NaN: the result must be NaN
};

const AngleCase kAngleCases[] = {
    {400, 40},           {360, 360},          {360.5, 0.5},     {-30, -30},   {-1e300, -1e300},
    {360000000, 360},    {360000090, 90},     {1e20, 280},      {1e300, 0},   {kInf, kNaN},
    {-kInf, kNaN},       {kNaN, kNaN},        {1e9 + 0.5, 280.5},
};

TEST(ReduceSpectrumAngle, EndsWellWithinASecondForEveryAngle) {
  // Run on a thread of its own, so that an endless loop fails the test
  // instead of hanging the suite.
  auto results = std::make_shared<std::promise<std::vector<double>>>();
  std::future<std::vector<double>> ready = results->get_future();
  std::thread([results] {
    std::vector<double> out;
    for (const AngleCase& c : kAngleCases) out.push_back(ReduceSpectrumAngle(c.angle));
    results->set_value(out);
  }).detach();
  ASSERT_EQ(ready.wait_for(std::chrono::milliseconds(250)), std::future_status::ready)
      << "an angle kept the loop running";
  std::vector<double> got = ready.get();
  for (std::size_t i = 0; i < std::size(kAngleCases); ++i) {
    const AngleCase& c = kAngleCases[i];
    if (std::isnan(c.reduced))
      EXPECT_TRUE(std::isnan(got[i])) << "angle " << c.angle;
    else
      EXPECT_EQ(c.reduced, got[i]) << "angle " << c.angle;
  }
}

}  // namespace
