// FormatG spells every finite double as printf's %g does.
#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "tvt/g_format.h"

namespace {

std::string Printf(double value) {
  char text[64];
  std::snprintf(text, sizeof text, "%g", value);
  return text;
}

std::string Formatted(double value) {
  char text[kFormatGRoom];
  return std::string(text, FormatG(text, value));
}

TEST(FormatG, SpellsNumbersAsPrintf) {
  std::vector<double> values = {
      0.0, -0.0, 1, -1, 7, 10, 99999, 100000, 999999, -999999, 1e6, 1e7, 1234567, 12345678901.0, 4294967296.0,
      999999.5, 999999.49999999994, 999999.50000000012, 99999.95, 99999.949999999997, 9.9999949999999992,
      123456.5, 123457.5, 123456.49999999999, 0.5, 2.5, -2.5, 1.5, 0.125, 0.1, 0.2, 0.3, 1.0 / 3, 2.0 / 3,
      -1.0 / 3, 3.14159265358979, 1.0000005, 1.0000015, 1.000001, 1.0000004999999999, 12.5, 0.0125,
      1e-4, 1e-5, 0.00010000005, 0.000099999949999999, 0.000099999950000001, 0.00009999995, 9.99999e-5,
      1.23456e-4, 1.234565e-4, 0.001, 0.01, 123.456789, 65535.99999, 32.000004, 1e-300, 1e300, -1e300, 1e21,
      std::numeric_limits<double>::max(), std::numeric_limits<double>::min(),
      std::numeric_limits<double>::denorm_min(), -std::numeric_limits<double>::denorm_min(), 2.2250738585072009e-308,
      std::numeric_limits<double>::epsilon(), 2147483647.0, -2147483648.0, 9007199254740993.0,
  };
  // Each digit count from 1 to 8, and the neighbours of a value either side.
  for (double base : {1.0, 1.5, 2.25, 3.125, 123.45, 6.000005, 9.999995, 9.9999949, 5.55555}) {
    for (int exponent = -9; exponent <= 9; ++exponent) {
      const double value = base * std::pow(10.0, exponent);
      values.insert(values.end(), {value, -value, std::nextafter(value, 0.0), std::nextafter(value, 1e308)});
    }
  }
  // Ties of the sixth digit in every decade written without an exponent.
  for (int exponent = -5; exponent <= 6; ++exponent)
    for (double digits : {100000.5, 123455.5, 123456.5, 999999.5, 999998.5, 555555.5}) {
      const double value = digits * std::pow(10.0, exponent - 6);
      values.insert(values.end(), {value, std::nextafter(value, 0.0), std::nextafter(value, 1e308)});
    }
  std::mt19937_64 random(20261123);
  for (int i = 0; i < 20000; ++i) {
    const double bits = std::bit_cast<double>(random());
    if (std::isfinite(bits)) values.push_back(bits);
    // Short decimals, as models hold them.
    values.push_back(static_cast<double>(random() % 20000001) / std::pow(10.0, static_cast<int>(random() % 10)) *
                     (random() % 2 ? 1 : -1));
    values.push_back(std::ldexp(static_cast<double>(random() % (std::uint64_t{1} << 53)), static_cast<int>(random() % 90) - 90));
  }
  for (double value : values) EXPECT_EQ(Printf(value), Formatted(value)) << "for " << std::hexfloat << value;
}

}  // namespace
