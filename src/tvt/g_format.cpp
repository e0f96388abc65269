// %g: six significant digits, exponent notation for exponents below -4 or
// of 6 and above, trailing zeros dropped. Integers below a million and the
// numbers written without an exponent are spelled here from the exact binary
// value, rounded as printf rounds (ties to even); the rest goes to the
// standard library.
#include "tvt/g_format.h"

#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>

namespace {

constexpr std::uint64_t kPowersOf10[] = {1,      10,      100,      1000,      10000,
                                         100000, 1000000, 10000000, 100000000, 1000000000};

// The six digits of \p magnitude, 100000 to 999999, and its decimal exponent
// after rounding; false for a number outside -4 to 5 or one this can't tell.
bool SixDigits(double magnitude, std::uint32_t& digits, int& exponent) {
#if defined(__SIZEOF_INT128__)
  std::uint64_t bits;
  std::memcpy(&bits, &magnitude, sizeof bits);
  const int biased = static_cast<int>(bits >> 52);
  if (biased == 0) return false;  // a denormal
  const unsigned __int128 mantissa = (bits & ((std::uint64_t{1} << 52) - 1)) | (std::uint64_t{1} << 52);
  const int shift = 1075 - biased;  // magnitude = mantissa / 2^shift
  if (shift < 1 || shift > 100) return false;
  // 5 minus the exponent, guessed from the binary one; it may be one off.
  int scale = 5 - (((biased - 1023) * 1233) >> 12);
  for (int guess = 0; guess < 3; ++guess) {
    if (scale < 0 || scale > 9) return false;
    const unsigned __int128 scaled = mantissa * kPowersOf10[scale];  // below 2^83
    std::uint64_t whole = static_cast<std::uint64_t>(scaled >> shift);
    if (whole < 100000) {
      ++scale;
      continue;
    }
    if (whole >= 1000000) {
      --scale;
      continue;
    }
    const unsigned __int128 rest = scaled & ((static_cast<unsigned __int128>(1) << shift) - 1);
    const unsigned __int128 half = static_cast<unsigned __int128>(1) << (shift - 1);
    if (rest > half || (rest == half && (whole & 1))) ++whole;
    if (whole == 1000000) {  // rounded up to the next power of ten
      whole = 100000;
      if (--scale < 0) return false;
    }
    digits = static_cast<std::uint32_t>(whole);
    exponent = 5 - scale;
    return true;
  }
#else
  (void)magnitude, (void)digits, (void)exponent;
#endif
  return false;
}

// \p digits as a number of exponent \p exponent (-4 to 5) in plain notation.
char* PutPlain(char* at, std::uint32_t digits, int exponent) {
  char d[6];
  for (int i = 5; i >= 0; --i, digits /= 10) d[i] = static_cast<char>('0' + digits % 10);
  int last = 5;
  while (d[last] == '0') --last;  // d[0] is not 0
  if (exponent >= 0) {
    for (int i = 0; i <= exponent; ++i) *at++ = d[i];
    if (last > exponent) *at++ = '.';
    for (int i = exponent + 1; i <= last; ++i) *at++ = d[i];
  } else {
    *at++ = '0';
    *at++ = '.';
    for (int i = -1; i > exponent; --i) *at++ = '0';
    for (int i = 0; i <= last; ++i) *at++ = d[i];
  }
  return at;
}

}  // namespace

char* FormatGPart(char* at, double value) {
  std::uint32_t digits;
  int exponent;
  if (SixDigits(std::fabs(value), digits, exponent)) {
    if (value < 0) *at++ = '-';
    return PutPlain(at, digits, exponent);
  }
#if defined(__cpp_lib_to_chars)
  return std::to_chars(at, at + kFormatGRoom, value, std::chars_format::general, 6).ptr;
#else
  // A standard library without to_chars for doubles: the same digits.
  return at + std::snprintf(at, kFormatGRoom, "%g", value);
#endif
}
