#include "extend/vbscript/date_time.h"

#include <chrono>
#include <cmath>
#include <cstdio>
#include <ctime>
#include <vector>

#include "extend/vbscript/errors.h"
#include "platform/bytes.h"

namespace lathwick::vbs {

const char* const kMonthNames[12] = {"January", "February", "March",     "April",   "May",      "June",
                                     "July",    "August",   "September", "October", "November", "December"};
const char* const kDayNames[7] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};

namespace {
// Days from 1970-01-01 of a proleptic Gregorian date (H. Hinnant's algorithm).
long long daysFromCivil(long long y, unsigned m, unsigned d) {
  y -= m <= 2;
  const long long era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<long long>(doe) - 719468;
}
void civilFromDays(long long z, int& y, int& m, int& d) {
  z += 719468;
  const long long era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const long long yy = static_cast<long long>(yoe) + era * 400;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = static_cast<int>(doy - (153 * mp + 2) / 5 + 1);
  m = static_cast<int>(mp < 10 ? mp + 3 : mp - 9);
  y = static_cast<int>(yy + (m <= 2));
}
const long long kEpoch = daysFromCivil(1899, 12, 30);
}  // namespace

double dateSerial(int year, int month, int day) {
  long long y = year;
  long long m = month - 1;
  y += m >= 0 ? m / 12 : (m - 11) / 12;
  m = ((m % 12) + 12) % 12;
  const long long days = daysFromCivil(y, static_cast<unsigned>(m + 1), 1) - kEpoch + (day - 1);
  if (y < 100 || y > 9999) raise(rt::kInvalidProcedureCall);
  return static_cast<double>(days);
}

double timeSerial(int hour, int minute, int second) {
  const long long secs = static_cast<long long>(hour) * 3600 + static_cast<long long>(minute) * 60 + second;
  return static_cast<double>(secs) / 86400.0;
}

DateParts splitDate(double serial) {
  DateParts p;
  double dayPart = std::trunc(serial);
  double frac = std::fabs(serial - dayPart);
  long long secs = std::llround(frac * 86400.0);
  if (secs >= 86400) {
    secs -= 86400;
    dayPart += serial < 0 ? -1 : 1;
  }
  const long long days = static_cast<long long>(dayPart) + kEpoch;
  civilFromDays(days, p.year, p.month, p.day);
  p.hour = static_cast<int>(secs / 3600);
  p.minute = static_cast<int>(secs / 60 % 60);
  p.second = static_cast<int>(secs % 60);
  p.weekday = static_cast<int>(((days + 4) % 7 + 7) % 7) + 1;  // 1970-01-01 was a Thursday
  p.dayOfYear = static_cast<int>(days - daysFromCivil(p.year, 1, 1)) + 1;
  return p;
}

double nowSerial() {
  const std::time_t t = std::time(nullptr);
  std::tm tm{};
  localtime_r(&t, &tm);
  return dateSerial(tm.tm_year + 1900, tm.tm_mon + 1, tm.tm_mday) + timeSerial(tm.tm_hour, tm.tm_min, tm.tm_sec);
}

namespace {
struct Token {
  bool number;
  int value;
  std::string word;
  char sep;    // separator that followed: '/', '-', ':', ',', ' ' or 0
  int digits;  // how many digits a number was written with
};

bool isLetter(char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }

// The text as numbers and words with the separators after them; empty for a character no date
// or time has.
std::optional<std::vector<Token>> tokenize(std::string_view text) {
  std::vector<Token> toks;
  size_t i = 0;
  while (i < text.size()) {
    const char c = text[i];
    if (c == ' ' || c == '\t' || c == ',') {
      if (!toks.empty() && toks.back().sep == 0) toks.back().sep = c == ',' ? ',' : ' ';
      ++i;
    } else if (c >= '0' && c <= '9') {
      int v = 0;
      int n = 0;
      while (i < text.size() && text[i] >= '0' && text[i] <= '9') {
        if (n < 6) v = v * 10 + (text[i] - '0');
        ++n, ++i;
      }
      if (n > 5) return std::nullopt;
      toks.push_back({true, v, {}, 0, n});
    } else if (c == '/' || c == '-' || c == ':' || c == '.') {
      if (toks.empty() || toks.back().sep != 0) return std::nullopt;
      toks.back().sep = c;
      ++i;
    } else if (isLetter(c)) {
      std::string w;
      while (i < text.size() && isLetter(text[i])) w += text[i++];
      toks.push_back({false, 0, w, 0, 0});
    } else {
      return std::nullopt;
    }
  }
  return toks;
}

int monthFromName(const std::string& w) {
  if (w.size() < 3) return 0;
  for (int i = 0; i < 12; ++i) {
    std::string full = kMonthNames[i];
    if (w.size() <= full.size() && equalsIgnoreCase(full.substr(0, w.size()), w)) return i + 1;
  }
  return 0;
}

int expandYear(int y, int digits) {
  if (digits <= 2) return y < 30 ? 2000 + y : 1900 + y;
  return y;
}

// The tokens sorted: numbers of the date (with their digit counts), numbers of the time (those
// joined by ":"), a month name and AM/PM.
struct DateWords {
  std::vector<int> dateNums, dateDigits, timeNums;
  int monthWord = 0;
  int ampm = 0;  // 1 AM, 2 PM
};

std::optional<DateWords> sortTokens(const std::vector<Token>& toks) {
  DateWords w;
  for (size_t k = 0; k < toks.size(); ++k) {
    const Token& t = toks[k];
    if (!t.number) {
      if (equalsIgnoreCase(t.word, "AM") || equalsIgnoreCase(t.word, "A")) w.ampm = 1;
      else if (equalsIgnoreCase(t.word, "PM") || equalsIgnoreCase(t.word, "P")) w.ampm = 2;
      else if (int m = monthFromName(t.word)) {
        if (w.monthWord) return std::nullopt;
        w.monthWord = m;
      } else {
        return std::nullopt;
      }
      continue;
    }
    const bool inTime = t.sep == ':' || (k > 0 && toks[k - 1].number && toks[k - 1].sep == ':');
    if (inTime) {
      w.timeNums.push_back(t.value);
    } else {
      w.dateNums.push_back(t.value);
      w.dateDigits.push_back(t.digits);
    }
  }
  return w;
}

// The date's serial when the words hold one (nothing for no date); false when they hold a
// date that cannot be. A lone number with AM or PM moves to the time ("10 AM").
bool datePart(DateWords& w, std::optional<double>& date) {
  const std::vector<int>& n = w.dateNums;
  if (w.monthWord) {
    // "January 15, 2024" or "15 January 2024"
    if (n.size() != 2) return false;
    int d = n[0], y = expandYear(n[1], w.dateDigits[1]);
    if (d > 31) std::swap(d, y);
    if (d < 1 || d > 31) return false;
    date = dateSerial(y, w.monthWord, d);
  } else if (n.size() == 3) {
    int y, m, d;
    if (w.dateDigits[0] >= 3) y = n[0], m = n[1], d = n[2];  // year first
    else m = n[0], d = n[1], y = expandYear(n[2], w.dateDigits[2]);
    if (m < 1 || m > 12 || d < 1 || d > 31) return false;
    date = dateSerial(y, m, d);
    if (splitDate(*date).day != d) return false;
  } else if (n.size() == 2) {
    // month/day of the current year
    const int m = n[0], d = n[1];
    if (m < 1 || m > 12 || d < 1 || d > 31) return false;
    date = dateSerial(splitDate(nowSerial()).year, m, d);
  } else if (!n.empty()) {
    if (!(n.size() == 1 && w.ampm && w.timeNums.empty())) return false;
    w.timeNums.push_back(n[0]);
  }
  return true;
}

// The time of day's serial from hours, minutes and seconds with AM/PM; nothing when it cannot be.
std::optional<double> timePart(const DateWords& w) {
  const std::vector<int>& t = w.timeNums;
  if (t.size() > 3) return std::nullopt;
  int h = t[0];
  const int mi = t.size() > 1 ? t[1] : 0, s = t.size() > 2 ? t[2] : 0;
  if (mi > 59 || s > 59) return std::nullopt;
  if (w.ampm) {
    if (h < 1 || h > 12) return std::nullopt;
    if (w.ampm == 1 && h == 12) h = 0;
    if (w.ampm == 2 && h != 12) h += 12;
  }
  if (h > 23) return std::nullopt;
  return timeSerial(h, mi, s);
}
}  // namespace

std::optional<double> parseDateText(std::string_view text) {
  const std::optional<std::vector<Token>> toks = tokenize(text);
  if (!toks || toks->empty()) return std::nullopt;
  std::optional<DateWords> words = sortTokens(*toks);
  if (!words) return std::nullopt;
  std::optional<double> date;
  if (!datePart(*words, date)) return std::nullopt;
  if (words->timeNums.empty()) {
    if (!date || words->ampm) return std::nullopt;
    return date;
  }
  const std::optional<double> time = timePart(*words);
  if (!time) return std::nullopt;
  const double day = date.value_or(0);
  return date && day < 0 ? day - *time : day + *time;
}

std::string formatShortDate(double serial) {
  const DateParts p = splitDate(serial);
  char buf[32];
  std::snprintf(buf, sizeof buf, "%d/%d/%d", p.month, p.day, p.year);
  return buf;
}

std::string formatLongDate(double serial) {
  const DateParts p = splitDate(serial);
  char buf[64];
  std::snprintf(buf, sizeof buf, "%s, %s %d, %d", kDayNames[p.weekday - 1], kMonthNames[p.month - 1], p.day, p.year);
  return buf;
}

std::string formatLongTime(double serial) {
  const DateParts p = splitDate(serial);
  const int h12 = p.hour % 12 == 0 ? 12 : p.hour % 12;
  char buf[32];
  std::snprintf(buf, sizeof buf, "%d:%02d:%02d %s", h12, p.minute, p.second, p.hour < 12 ? "AM" : "PM");
  return buf;
}

std::string formatShortTime(double serial) {
  const DateParts p = splitDate(serial);
  char buf[16];
  std::snprintf(buf, sizeof buf, "%02d:%02d", p.hour, p.minute);
  return buf;
}

std::string formatDate(double serial) {
  const double dayPart = std::trunc(serial);
  const bool hasTime = std::llround(std::fabs(serial - dayPart) * 86400.0) != 0;
  if (dayPart == 0 && hasTime) return formatLongTime(serial);
  if (!hasTime) return formatShortDate(serial);
  return formatShortDate(serial) + " " + formatLongTime(serial);
}

}  // namespace lathwick::vbs
