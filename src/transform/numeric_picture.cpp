#include "transform/numeric_picture.h"

#include <charconv>
#include <algorithm>
#include <cmath>
#include <cstdint>

#include "platform/errors.h"

namespace lathwick::transform {

namespace {
constexpr int kSignificant = 15;
constexpr int kInvalidCall = 5;

// Powers of ten that doubles hold exactly.
constexpr double kPow10[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                             1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t kLow = 100000000000000ULL;    // 10^14: the smallest 15-digit number
constexpr std::uint64_t kHigh = 1000000000000000ULL;  // 10^15
}  // namespace

bool quickDecimalDigits(double magnitude, DecimalDigits& out) {
  // Programs hold values from about 1e-5 up; below that the exact way is quick enough.
  if (!(magnitude >= 1e-5 && magnitude < 1e15)) return false;
  // floor(log10) from the binary exponent, corrected by one comparison.
  int e = (std::ilogb(magnitude) * 78913) >> 18;  // 78913 / 2^18 is just under log10(2)
  if (e < 14 && magnitude >= (e + 1 >= 0 ? kPow10[e + 1] : 1.0 / kPow10[-(e + 1)])) ++e;
  if (e < -5) return false;
  const int k = 14 - e;  // 0 .. 19: 10^k is exact
  const double scaled = magnitude * kPow10[k];  // off by at most half a unit of 0.125
  const double fraction = scaled - std::floor(scaled);
  if (std::fabs(fraction - 0.5) < 0.1) return false;  // too near a tie to decide here
  std::uint64_t n = static_cast<std::uint64_t>(std::nearbyint(scaled));
  if (n == kHigh) {  // rounded up into a 16th digit
    n = kLow;
    ++e;
  }
  if (n < kLow || n >= kHigh) return false;  // the power of ten was misjudged at a boundary
  for (int i = kSignificant - 1; i >= 0; --i, n /= 10) out.digits[i] = static_cast<char>('0' + n % 10);
  out.pointPos = e + 1;
  return true;
}

void exactDecimalDigits(double magnitude, DecimalDigits& out) {
  char sci[40];
  const auto r = std::to_chars(sci, sci + sizeof sci, magnitude, std::chars_format::scientific, kSignificant - 1);
  int count = 0;
  int exponent = 0;
  const char* p = sci;
  for (; p < r.ptr && *p != 'e'; ++p)
    if (*p != '.') out.digits[count++] = *p;
  if (p < r.ptr) std::from_chars(p + 1 + (p[1] == '+'), r.ptr, exponent);
  out.pointPos = exponent + 1;
}

bool NumericPicture::isValid(std::string_view picture) {
  int points = 0;
  for (const char c : picture) {
    if (c == '.') ++points;
    else if (c != '0' && c != '#') return false;
  }
  return points <= 1;
}

NumericPicture::NumericPicture(std::string_view picture) {
  if (!isValid(picture)) throw AppError(kInvalidCall, "Invalid procedure call or argument");
  const size_t dot = picture.find('.');
  const std::string_view integer = picture.substr(0, dot);
  const size_t firstZero = integer.find('0');
  minIntegerDigits_ = firstZero == std::string_view::npos ? 0 : static_cast<int>(integer.size() - firstZero);
  if (dot != std::string_view::npos) {
    point_ = true;
    const std::string_view decimals = picture.substr(dot + 1);
    maxDecimals_ = static_cast<int>(decimals.size());
    const size_t lastZero = decimals.rfind('0');
    minDecimals_ = lastZero == std::string_view::npos ? 0 : static_cast<int>(lastZero) + 1;
  }
}

std::string NumericPicture::format(double value) const {
  std::string out;
  format(value, out);
  return out;
}

void NumericPicture::format(double value, std::string& out) const {
  if (!std::isfinite(value)) throw AppError(6, "Overflow");
  // Decimal digits of |value| to 15 significant places: value = 0.d1d2...d15 x 10^pointPos.
  char digits[kSignificant + 1];
  int count = 0;
  int pointPos = 0;
  const double magnitude = std::fabs(value);
  if (magnitude != 0.0) {
    DecimalDigits d;
    if (!quickDecimalDigits(magnitude, d)) exactDecimalDigits(magnitude, d);
    std::copy(d.digits, d.digits + kSignificant, digits);
    count = kSignificant;
    pointPos = d.pointPos;
  }
  // Round half away from zero to maxDecimals_ places: keep pointPos + maxDecimals_ digits.
  int keep = pointPos + maxDecimals_;
  if (keep < count) {
    const bool up = keep >= 0 && digits[keep] >= '5';
    count = keep < 0 ? 0 : keep;
    if (up) {
      int i = count - 1;
      while (i >= 0 && digits[i] == '9') digits[i--] = '0';
      if (i >= 0) {
        ++digits[i];
      } else {  // all nines (or nothing kept): one more digit in front
        for (int k = count; k > 0; --k) digits[k] = digits[k - 1];
        digits[0] = '1';
        ++count;
        ++pointPos;
      }
    }
  }
  // Digit at place i, counted from the first digit (place 0); zero outside the kept digits.
  auto digitAt = [&](int place) { return place >= 0 && place < count ? digits[place] : '0'; };
  bool nonZero = false;
  for (int i = 0; i < count; ++i) nonZero |= digits[i] != '0';

  if (value < 0 && nonZero) out.push_back('-');
  // Integer part: places 0 .. pointPos-1, without leading zeros, padded to the picture's zeros.
  int firstShown = 0;
  while (firstShown < pointPos && digitAt(firstShown) == '0') ++firstShown;
  const int integerDigits = pointPos - firstShown;
  for (int pad = integerDigits < 0 ? minIntegerDigits_ : minIntegerDigits_ - integerDigits; pad > 0; --pad)
    out.push_back('0');
  for (int i = firstShown; i < pointPos; ++i) out.push_back(digitAt(i));
  if (!point_) return;
  out.push_back('.');
  // Decimal part: maxDecimals_ places, trailing zeros dropped down to the picture's zeros.
  int shown = maxDecimals_;
  while (shown > minDecimals_ && digitAt(pointPos + shown - 1) == '0') --shown;
  for (int i = 0; i < shown; ++i) out.push_back(digitAt(pointPos + i));
}

}  // namespace lathwick::transform
