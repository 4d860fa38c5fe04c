#pragma once
// Operate's output format: a numeric picture of "0" (a digit always shown), "#" (a digit shown
// only when significant) and "." (the decimal point), as in "##0.0###".
#include <string>
#include <string_view>

namespace lathwick::transform {

class NumericPicture {
 public:
  // Throws AppError 5 when the picture holds anything but "0", "#" and one ".".
  explicit NumericPicture(std::string_view picture);
  static bool isValid(std::string_view picture);

  // The value rounded first to 15 significant digits, then half away from zero to the picture's
  // decimal places; a leading "-" only when the shown number is not zero. Appends to `out`.
  void format(double value, std::string& out) const;
  std::string format(double value) const;
  // The general way, digit by digit; format() takes a quicker route in whole numbers when it
  // can, and the two must agree.
  std::string formatByDigits(double value) const;

 private:
  bool appendFromWhole(bool negative, const struct DecimalDigits& d, std::string& out) const;
  void appendFromDigits(bool negative, const struct DecimalDigits* d, std::string& out) const;

  int minIntegerDigits_ = 0;  // from the first "0" before the point to the point
  int maxDecimals_ = 0;       // every digit place after the point
  int minDecimals_ = 0;       // up to the last "0" after the point
  bool point_ = false;
};

// The first 15 significant decimal digits of a positive finite magnitude, correctly rounded:
// magnitude = 0.d1...d15 x 10^pointPos. The quick way works in integers and declines (returns
// false) when it cannot be sure; the exact way always answers. Both are here to be compared.
struct DecimalDigits {
  char digits[16];
  int pointPos = 0;
  unsigned long long whole = 0;  // the 15 digits as one number (the quick way only)
};
bool quickDecimalDigits(double magnitude, DecimalDigits& out);
void exactDecimalDigits(double magnitude, DecimalDigits& out);

}  // namespace lathwick::transform
