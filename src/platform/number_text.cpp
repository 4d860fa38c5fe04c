#include "platform/number_text.h"

#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

namespace lathwick {

namespace {

std::string_view withoutBlanks(std::string_view text) {
  size_t b = 0, e = text.size();
  while (b < e && (text[b] == ' ' || text[b] == '\t')) ++b;
  while (e > b && (text[e - 1] == ' ' || text[e - 1] == '\t')) --e;
  return text.substr(b, e - b);
}

int digitValue(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return 99;
}

// "&H..", "&O.." or "&..": short forms are 16-bit, longer ones 32-bit, both signed.
std::optional<double> radixNumber(std::string_view t) {
  size_t i = 1;
  int base = 8;
  if (i < t.size() && (t[i] == 'H' || t[i] == 'h')) base = 16, ++i;
  else if (i < t.size() && (t[i] == 'O' || t[i] == 'o')) ++i;
  if (i >= t.size()) return std::nullopt;
  unsigned long long v = 0;
  int n = 0;
  for (; i < t.size(); ++i, ++n) {
    const int d = digitValue(t[i]);
    if (d >= base) return std::nullopt;
    v = v * static_cast<unsigned>(base) + static_cast<unsigned>(d);
    if (v > 0xFFFFFFFFull) return std::nullopt;
  }
  if (v <= 0xFFFF && (base == 16 ? n <= 4 : v <= 0177777))
    return static_cast<double>(static_cast<std::int16_t>(v));
  return static_cast<double>(static_cast<std::int32_t>(static_cast<std::uint32_t>(v)));
}

size_t skipDigits(std::string_view t, size_t i) {
  while (i < t.size() && t[i] >= '0' && t[i] <= '9') ++i;
  return i;
}

// Sign, digits, decimal point, exponent with E or D; the whole text must be used.
std::optional<double> decimalNumber(std::string_view t) {
  size_t i = (t[0] == '+' || t[0] == '-') ? 1 : 0;
  const size_t intEnd = skipDigits(t, i);
  bool digits = intEnd > i;
  i = intEnd;
  if (i < t.size() && t[i] == '.') {
    const size_t fracEnd = skipDigits(t, i + 1);
    digits = digits || fracEnd > i + 1;
    i = fracEnd;
  }
  if (!digits) return std::nullopt;
  if (i < t.size() && (t[i] == 'e' || t[i] == 'E' || t[i] == 'd' || t[i] == 'D')) {
    size_t j = i + 1;
    if (j < t.size() && (t[j] == '+' || t[j] == '-')) ++j;
    const size_t expEnd = skipDigits(t, j);
    if (expEnd == j) return std::nullopt;
    i = expEnd;
  }
  if (i != t.size()) return std::nullopt;
  std::string tmp(t);
  for (char& c : tmp)
    if (c == 'd' || c == 'D') c = 'E';
  const double v = std::strtod(tmp.c_str(), nullptr);
  if (!std::isfinite(v)) return std::nullopt;
  return v;
}

}  // namespace

std::optional<double> parseNumberText(std::string_view text) {
  const std::string_view t = withoutBlanks(text);
  if (t.empty()) return std::nullopt;
  return t[0] == '&' ? radixNumber(t) : decimalNumber(t);
}

}  // namespace lathwick
