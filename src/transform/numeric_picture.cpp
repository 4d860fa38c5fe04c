#include "transform/numeric_picture.h"

#include <charconv>
#include <cmath>

#include "platform/errors.h"

namespace lathwick::transform {

namespace {
constexpr int kSignificant = 15;
constexpr int kInvalidCall = 5;
}  // namespace

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
  char digits[kSignificant + 2];
  int count = 0;
  int pointPos = 0;
  const double magnitude = std::fabs(value);
  if (magnitude != 0.0) {
    char sci[40];
    const auto r = std::to_chars(sci, sci + sizeof sci, magnitude, std::chars_format::scientific, kSignificant - 1);
    const char* p = sci;
    const char* end = r.ptr;
    int exponent = 0;
    for (; p < end && *p != 'e'; ++p)
      if (*p != '.') digits[count++] = *p;
    if (p < end) std::from_chars(p + 1 + (p[1] == '+'), end, exponent);
    pointPos = exponent + 1;
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
