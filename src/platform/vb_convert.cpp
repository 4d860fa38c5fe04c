#include "platform/vb_convert.h"

#include <cmath>
#include <cstdio>
#include <cstdlib>

#include "platform/bytes.h"
#include "platform/errors.h"

namespace lathwick {

double toDouble(std::string_view text) {
  const std::string t = trimBlanks(text);
  if (t.size() > 2 && t[0] == '&' && (t[1] == 'H' || t[1] == 'h' || t[1] == 'O' || t[1] == 'o')) {
    const int base = (t[1] == 'H' || t[1] == 'h') ? 16 : 8;
    char* end = nullptr;
    const long v = std::strtol(t.c_str() + 2, &end, base);
    if (*end != '\0') throw makeError(err::kTypeMismatch);
    return static_cast<double>(v);
  }
  // Only plain decimal syntax: strtod alone would also take "inf", "nan" and hex floats.
  size_t i = 0;
  if (i < t.size() && (t[i] == '+' || t[i] == '-')) ++i;
  bool digits = false;
  while (i < t.size() && t[i] >= '0' && t[i] <= '9') ++i, digits = true;
  if (i < t.size() && t[i] == '.') {
    ++i;
    while (i < t.size() && t[i] >= '0' && t[i] <= '9') ++i, digits = true;
  }
  if (digits && i < t.size() && (t[i] == 'e' || t[i] == 'E')) {
    size_t j = i + 1;
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
    const size_t expStart = j;
    while (j < t.size() && t[j] >= '0' && t[j] <= '9') ++j;
    if (j > expStart) i = j;
  }
  if (!digits || i != t.size()) throw makeError(err::kTypeMismatch);
  return std::strtod(t.c_str(), nullptr);
}

namespace {
double roundHalfEven(double v) {
  const double r = std::nearbyint(v);  // default rounding mode is to nearest, ties to even
  return r;
}
}  // namespace

std::int16_t toInt16(std::string_view text) {
  const double v = roundHalfEven(toDouble(text));
  if (v < -32768.0 || v > 32767.0) throw makeError(err::kOverflow);
  return static_cast<std::int16_t>(v);
}

std::int32_t toInt32(std::string_view text) {
  const double v = roundHalfEven(toDouble(text));
  if (v < -2147483648.0 || v > 2147483647.0) throw makeError(err::kOverflow);
  return static_cast<std::int32_t>(v);
}

bool toBool(std::string_view text) {
  const std::string t = trimBlanks(text);
  if (equalsIgnoreCase(t, "True")) return true;
  if (equalsIgnoreCase(t, "False")) return false;
  return toDouble(t) != 0.0;
}

std::string singleText(double value) {
  char buf[32];
  std::snprintf(buf, sizeof buf, "%.7g", static_cast<double>(static_cast<float>(value)));
  return buf;
}

}  // namespace lathwick
