#include "transform/numeric_picture.h"

#include <charconv>
#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>
#include <utility>

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

namespace {
// The 15 significant digits as one whole number and the place of the point; false when unsure.
bool quickWhole(double magnitude, DecimalDigits& out) {
  // Programs hold values from about 1e-5 up; below that the exact way is quick enough.
  if (!(magnitude >= 1e-5 && magnitude < 1e15)) return false;
  // floor(log10) from the binary exponent, corrected by one comparison.
  const int binaryExponent = static_cast<int>((std::bit_cast<std::uint64_t>(magnitude) >> 52) & 0x7ff) - 1023;
  int e = (binaryExponent * 78913) >> 18;  // 78913 / 2^18 is just under log10(2)
  if (e < 14 && magnitude >= (e + 1 >= 0 ? kPow10[e + 1] : 1.0 / kPow10[-(e + 1)])) ++e;
  if (e < -5) return false;
  const int k = 14 - e;  // 0 .. 19: 10^k is exact
  const double scaled = magnitude * kPow10[k];  // off by at most half a unit of 0.125
  const auto truncated = static_cast<std::uint64_t>(scaled);
  const double fraction = scaled - static_cast<double>(truncated);
  if (fraction > 0.4 && fraction < 0.6) return false;  // too near a tie to decide here
  std::uint64_t n = truncated + (fraction >= 0.5);
  if (n == kHigh) {  // rounded up into a 16th digit
    n = kLow;
    ++e;
  }
  if (n < kLow || n >= kHigh) return false;  // the power of ten was misjudged at a boundary
  out.whole = n;
  out.pointPos = e + 1;
  return true;
}

// n / 10^exponent and its remainder, with constant divisors the compiler turns into multiplications.
template <int E>
void divideByPow10(std::uint64_t n, std::uint64_t& quotient, std::uint64_t& remainder) {
  constexpr std::uint64_t p = [] {
    std::uint64_t v = 1;
    for (int i = 0; i < E; ++i) v *= 10;
    return v;
  }();
  quotient = n / p;
  remainder = n % p;
}
template <int... E>
void divideByPow10(int exponent, std::uint64_t n, std::uint64_t& quotient, std::uint64_t& remainder,
                   std::integer_sequence<int, E...>) {
  ((exponent == E ? (divideByPow10<E>(n, quotient, remainder), true) : false) || ...);
}
void divideByPow10(int exponent, std::uint64_t n, std::uint64_t& quotient, std::uint64_t& remainder) {
  divideByPow10(exponent, n, quotient, remainder, std::make_integer_sequence<int, 20>());
}

void digitsFromWhole(DecimalDigits& d) {
  std::uint64_t rest = d.whole;
  for (int i = kSignificant - 1; i >= 0; --i, rest /= 10) d.digits[i] = static_cast<char>('0' + rest % 10);
}
}  // namespace

bool quickDecimalDigits(double magnitude, DecimalDigits& out) {
  if (!quickWhole(magnitude, out)) return false;
  digitsFromWhole(out);
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
  const double magnitude = std::fabs(value);
  if (magnitude == 0.0) return appendFromDigits(false, nullptr, out);
  DecimalDigits d;
  if (quickWhole(magnitude, d)) {
    if (appendFromWhole(value < 0, d, out)) return;
    digitsFromWhole(d);
  } else {
    exactDecimalDigits(magnitude, d);
  }
  appendFromDigits(value < 0, &d, out);
}

std::string NumericPicture::formatByDigits(double value) const {
  if (!std::isfinite(value)) throw AppError(6, "Overflow");
  std::string out;
  const double magnitude = std::fabs(value);
  if (magnitude == 0.0) {
    appendFromDigits(false, nullptr, out);
  } else {
    DecimalDigits d;
    exactDecimalDigits(magnitude, d);
    appendFromDigits(value < 0, &d, out);
  }
  return out;
}

bool NumericPicture::appendFromWhole(bool negative, const DecimalDigits& d, std::string& out) const {
  if (minIntegerDigits_ > 20 || maxDecimals_ > 18) return false;  // beyond the buffer below
  static constexpr std::uint64_t kPow10u[] = {1ULL,
                                              10ULL,
                                              100ULL,
                                              1000ULL,
                                              10000ULL,
                                              100000ULL,
                                              1000000ULL,
                                              10000000ULL,
                                              100000000ULL,
                                              1000000000ULL,
                                              10000000000ULL,
                                              100000000000ULL,
                                              1000000000000ULL,
                                              10000000000000ULL,
                                              100000000000000ULL,
                                              1000000000000000ULL,
                                              10000000000000000ULL,
                                              100000000000000000ULL,
                                              1000000000000000000ULL,
                                              10000000000000000000ULL};
  // d.whole holds the value times 10^k (k decimals); round it half up to the picture's places.
  const int k = kSignificant - d.pointPos;  // 0 .. 19
  std::uint64_t q = d.whole;
  int decimals = k;
  if (maxDecimals_ < k) {
    std::uint64_t rest = 0;
    divideByPow10(k - maxDecimals_, d.whole, q, rest);
    if (rest >= kPow10u[k - maxDecimals_] / 2) ++q;
    decimals = maxDecimals_;
  }
  std::uint64_t integer = 0, fraction = 0;
  divideByPow10(decimals, q, integer, fraction);
  char buf[80];
  char* w = buf;
  if (negative && q != 0) *w++ = '-';
  char digits[24];
  const int integerDigits = integer == 0 ? 0 : static_cast<int>(std::to_chars(digits, digits + 24, integer).ptr - digits);
  for (int pad = minIntegerDigits_ - integerDigits; pad > 0; --pad) *w++ = '0';
  w = std::copy(digits, digits + integerDigits, w);
  if (point_) {
    *w++ = '.';
    char* first = w;
    std::uint64_t f = fraction;
    for (int i = decimals - 1; i >= 0; --i, f /= 10) first[i] = static_cast<char>('0' + f % 10);
    for (int i = decimals; i < maxDecimals_; ++i) first[i] = '0';
    int shown = maxDecimals_;
    while (shown > minDecimals_ && first[shown - 1] == '0') --shown;
    w = first + shown;
  }
  out.append(buf, w);
  return true;
}

void NumericPicture::appendFromDigits(bool negative, const DecimalDigits* d, std::string& out) const {
  // Decimal digits of the magnitude to 15 significant places: 0.d1d2...d15 x 10^pointPos.
  char digits[kSignificant + 1];
  int count = 0;
  int pointPos = 0;
  if (d) {
    std::copy(d->digits, d->digits + kSignificant, digits);
    count = kSignificant;
    pointPos = d->pointPos;
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

  if (negative && nonZero) out.push_back('-');
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
