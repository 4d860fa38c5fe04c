#include "platform/vb_convert.h"

#include <cmath>
#include <cstdio>

#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/number_text.h"

namespace lathwick {

double toDouble(std::string_view text) {
  const auto v = parseNumberText(text);
  if (!v) throw makeError(err::kTypeMismatch);
  return *v;
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
