#include "workspace/script_format.h"

#include <cmath>
#include <cstdio>

#include "extend/vbscript/convert.h"
#include "extend/vbscript/date_time.h"
#include "transform/numeric_picture.h"

namespace lathwick {

namespace {

// One bracketed list at `p` (just after "["); advances `p` past "]". -1 when the list is open.
int matchList(std::string_view pattern, std::size_t& p, char c) {
  bool negate = p < pattern.size() && pattern[p] == '!';
  if (negate) ++p;
  bool found = false;
  while (p < pattern.size() && pattern[p] != ']') {
    const char first = pattern[p];
    if (p + 2 < pattern.size() && pattern[p + 1] == '-' && pattern[p + 2] != ']' && first <= pattern[p + 2]) {
      if (c >= first && c <= pattern[p + 2]) found = true;
      p += 3;
      continue;
    }
    if (c == first) found = true;
    ++p;
  }
  if (p >= pattern.size()) return -1;
  ++p;
  return found != negate ? 1 : 0;
}

bool likeFrom(std::string_view text, std::size_t t, std::string_view pattern, std::size_t p) {
  while (p < pattern.size()) {
    const char pc = pattern[p];
    if (pc == '*') {
      for (std::size_t k = t; k <= text.size(); ++k)
        if (likeFrom(text, k, pattern, p + 1)) return true;
      return false;
    }
    if (t >= text.size()) return false;
    const char c = text[t];
    if (pc == '[') {
      ++p;
      if (matchList(pattern, p, c) != 1) return false;
      ++t;
      continue;
    }
    if ((pc == '?') || (pc == '#' && c >= '0' && c <= '9') || (pc != '#' && pc == c)) {
      ++p;
      ++t;
      continue;
    }
    return false;
  }
  return t == text.size();
}

std::string groupThousands(const std::string& digits) {
  std::string out;
  const std::size_t n = digits.size();
  for (std::size_t i = 0; i < n; ++i) {
    if (i > 0 && (n - i) % 3 == 0) out += ',';
    out += digits[i];
  }
  return out;
}

std::string fixed(double value, int decimals, bool thousands) {
  char buffer[64];
  std::snprintf(buffer, sizeof buffer, "%.*f", decimals, std::fabs(value));
  std::string s = buffer;
  const std::size_t point = s.find('.');
  std::string whole = s.substr(0, point), rest = point == std::string::npos ? "" : s.substr(point);
  if (thousands) whole = groupThousands(whole);
  const bool negative = value < 0 && s.find_first_not_of("0.") != std::string::npos;
  return (negative ? "-" : "") + whole + rest;
}

const char* const kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                               "July",    "August",   "September", "October", "November", "December"};
const char* const kDays[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

std::string two(int n) { return (n < 10 ? "0" : "") + std::to_string(n); }

// Week of the year: weeks start on Sunday, the week holding January 1 is week 1.
int weekOfYear(const vbs::DateParts& d) {
  const int jan1Weekday = ((d.weekday - 1 - (d.dayOfYear - 1)) % 7 + 7) % 7;  // 0 = Sunday
  return (d.dayOfYear - 1 + jan1Weekday) / 7 + 1;
}

// The longest run of `c` at `i` (at most `most`).
std::size_t runOf(std::string_view f, std::size_t i, char c, std::size_t most) {
  std::size_t n = 0;
  while (i + n < f.size() && n < most && (f[i + n] | 0x20) == c) ++n;
  return n;
}

std::string dateToken(const vbs::DateParts& d, char c, std::size_t n) {
  switch (c) {
    case 'y':
      if (n >= 3) return std::to_string(d.year);
      if (n == 2) return two(d.year % 100);
      return std::to_string(d.dayOfYear);
    case 'm':
      if (n >= 4) return kMonths[d.month - 1];
      if (n == 3) return std::string(kMonths[d.month - 1]).substr(0, 3);
      return n == 2 ? two(d.month) : std::to_string(d.month);
    case 'd':
      if (n >= 4) return kDays[d.weekday - 1];
      if (n == 3) return std::string(kDays[d.weekday - 1]).substr(0, 3);
      return n == 2 ? two(d.day) : std::to_string(d.day);
    case 'h': return n == 2 ? two(d.hour) : std::to_string(d.hour);
    case 'n': return n == 2 ? two(d.minute) : std::to_string(d.minute);
    case 's': return n == 2 ? two(d.second) : std::to_string(d.second);
    case 'w': return n == 2 ? std::to_string(weekOfYear(d)) : std::to_string(d.weekday);
    case 'q': return std::to_string((d.month - 1) / 3 + 1);
    default: return std::string(n, c);
  }
}

}  // namespace

bool likeMatch(std::string_view text, std::string_view pattern) { return likeFrom(text, 0, pattern, 0); }

bool isDateFormat(std::string_view format) {
  if (format.find_first_of("0#") != std::string_view::npos) return false;
  for (char c : format)
    if (std::string_view("ymdhnswq").find(static_cast<char>(c | 0x20)) != std::string_view::npos) return true;
  return false;
}

std::string formatNumber(double value, std::string_view format) {
  if (format.empty() || format == "General Number") return vbs::numberText(value);
  if (format == "Fixed") return fixed(value, 2, false);
  if (format == "Standard") return fixed(value, 2, true);
  if (format == "Percent") return fixed(value * 100, 2, false) + "%";
  const std::size_t first = format.find_first_of("0#.");
  if (first == std::string_view::npos) return std::string(format);
  std::size_t last = format.find_last_of("0#.,");
  std::string picture;
  bool thousands = false;
  for (std::size_t i = first; i <= last; ++i) {
    if (format[i] == ',') thousands = true;
    else if (format[i] == '0' || format[i] == '#' || format[i] == '.') picture += format[i];
  }
  if (!transform::NumericPicture::isValid(picture)) return std::string(format);
  std::string number = transform::NumericPicture(picture).format(value);
  if (thousands) {
    const bool negative = !number.empty() && number[0] == '-';
    std::string body = negative ? number.substr(1) : number;
    const std::size_t point = body.find('.');
    body = groupThousands(body.substr(0, point)) + (point == std::string::npos ? "" : body.substr(point));
    number = (negative ? "-" : "") + body;
  }
  return std::string(format.substr(0, first)) + number + std::string(format.substr(last + 1));
}

std::string formatDateSerial(double serial, std::string_view format) {
  const vbs::DateParts d = vbs::splitDate(serial);
  std::string out;
  for (std::size_t i = 0; i < format.size();) {
    const char c = format[i];
    if (c == '\\' && i + 1 < format.size()) {
      out += format[i + 1];
      i += 2;
      continue;
    }
    if (c == '"') {
      const std::size_t end = format.find('"', i + 1);
      out += format.substr(i + 1, end == std::string_view::npos ? std::string_view::npos : end - i - 1);
      i = end == std::string_view::npos ? format.size() : end + 1;
      continue;
    }
    const char lower = static_cast<char>(c | 0x20);
    if (std::string_view("ymdhnswq").find(lower) == std::string_view::npos) {
      out += c;
      ++i;
      continue;
    }
    std::size_t n = runOf(format, i, lower, lower == 'y' || lower == 'd' || lower == 'm' ? 4 : 2);
    if (lower == 'y' && n == 3) n = 2;  // "yyy" reads as "yy" then "y"
    // "m" right after an hour is minutes, as the runtime reads it.
    if (lower == 'm' && n <= 2 && !out.empty() && i > 0 && (format[i - 1] == ':')) {
      out += dateToken(d, 'n', n);
    } else {
      out += dateToken(d, lower, n);
    }
    i += n;
  }
  return out;
}

}  // namespace lathwick
