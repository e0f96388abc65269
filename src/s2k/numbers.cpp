// Number reading shared by every parser.
#include "s2k/numbers.h"

#include <algorithm>
#include <cctype>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

double ParseDouble(std::string_view text) {
  std::size_t i = 0, n = text.size();
  while (i < n && std::isspace(static_cast<unsigned char>(text[i]))) ++i;
  std::size_t start = i;
  if (i < n && (text[i] == '+' || text[i] == '-')) ++i;
  std::size_t digits = 0, fraction = 0;
  std::uint64_t mantissa = 0;
  auto digit = [&] {
    if (digits < 19) mantissa = mantissa * 10 + static_cast<std::uint64_t>(text[i] - '0');
    ++i, ++digits;
  };
  while (i < n && std::isdigit(static_cast<unsigned char>(text[i]))) digit();
  if (i < n && text[i] == '.') {
    ++i;
    while (i < n && std::isdigit(static_cast<unsigned char>(text[i]))) digit(), ++fraction;
  }
  if (digits == 0) return 0;
  std::size_t end = i;
  // A short decimal without exponent is a whole number over a power of ten,
  // both exact in a double, so one division rounds it as any reader would.
  constexpr double kPowersOfTen[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                     1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
  const bool exponent = i < n && (text[i] == 'e' || text[i] == 'E');
  if (!exponent && digits < 19 && mantissa <= (std::uint64_t{1} << 53) && fraction <= 22) {
    double value = static_cast<double>(mantissa) / kPowersOfTen[fraction];
    return text[start] == '-' ? -value : value;
  }
  if (i < n && (text[i] == 'e' || text[i] == 'E')) {
    std::size_t j = i + 1;
    if (j < n && (text[j] == '+' || text[j] == '-')) ++j;
    std::size_t expDigits = 0;
    while (j < n && std::isdigit(static_cast<unsigned char>(text[j]))) ++j, ++expDigits;
    if (expDigits > 0) end = j;
  }
  // The prefix is plain decimal, so both readers read exactly it and round it
  // the same way; strtod only where from_chars declines (out of range) or the
  // standard library has none for doubles.
#if defined(__cpp_lib_to_chars)
  const char* first = text.data() + start;
  if (*first == '+') ++first;
  double value = 0;
  auto [stop, error] = std::from_chars(first, text.data() + end, value);
  if (error == std::errc() && stop == text.data() + end) return value;
#endif
  std::string prefix(text.substr(start, end - start));
  return std::strtod(prefix.c_str(), nullptr);
}

// What this platform's atoi does, without leaning on its undefined overflow:
// the 64-bit value cut to 32 bits, on every platform.
int ParseInt(std::string_view text) {
  // Plain digits, as most names are, need no strtoll.
  const bool plain = !text.empty() && text.size() <= 18 &&
                     std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
  if (!plain) return static_cast<int>(std::strtoll(std::string(text).c_str(), nullptr, 10));
  long long value = 0;
  for (char c : text) value = value * 10 + (c - '0');
  return static_cast<int>(value);
}

int TruncateToInt(double value) {
  if (!(value > -2147483649.0 && value < 2147483648.0)) return -2147483647 - 1;
  return static_cast<int>(value);
}
