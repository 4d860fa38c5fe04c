// Date and time functions.
#include <chrono>
#include <cmath>
#include <ctime>

#include "extend/vbscript/builtins.h"
#include "extend/vbscript/date_time.h"
#include "platform/bytes.h"

namespace lathwick::vbs::builtin {

namespace {
double dateArg(Runtime& rt, const Variant& v) {
  if (v.isNull()) raise(rt::kInvalidUseOfNull);
  return toDate(rt, v);
}

Variant fnNow(Runtime&, Args&) { return Variant::date(nowSerial()); }
Variant fnDate(Runtime&, Args&) { return Variant::date(std::floor(nowSerial())); }
Variant fnTime(Runtime&, Args&) {
  const double n = nowSerial();
  return Variant::date(n - std::floor(n));
}
Variant fnTimer(Runtime&, Args&) {
  const std::time_t t = std::time(nullptr);
  std::tm tm{};
  localtime_r(&t, &tm);
  const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(
                      std::chrono::system_clock::now().time_since_epoch()).count() % 1000;
  return Variant::single(tm.tm_hour * 3600 + tm.tm_min * 60 + tm.tm_sec + static_cast<double>(ms) / 1000.0);
}

template <int DateParts::*Field>
Variant part(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::integer(splitDate(dateArg(rt, a[0])).*Field);
}

int firstDayArg(Runtime& rt, const Args& a, size_t i) {
  if (!given(a, i)) return 1;
  const std::int32_t d = intArg(rt, a[i]);
  if (d < 0 || d > 7) raise(rt::kInvalidProcedureCall);
  return d == 0 ? 1 : d;
}

int weekdayOf(double serial, int firstDay) { return (splitDate(serial).weekday - firstDay + 7) % 7 + 1; }

Variant fnWeekday(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::integer(weekdayOf(dateArg(rt, a[0]), firstDayArg(rt, a, 1)));
}

Variant fnWeekdayName(Runtime& rt, Args& a) {
  const std::int32_t n = intArg(rt, a[0]);
  if (n < 1 || n > 7) raise(rt::kInvalidProcedureCall);
  const bool abbrev = given(a, 1) && toBool(rt, a[1]);
  const int first = firstDayArg(rt, a, 2);
  std::string name = kDayNames[(n - 1 + first - 1) % 7];
  return Variant::str(abbrev ? name.substr(0, 3) : name);
}

Variant fnMonthName(Runtime& rt, Args& a) {
  const std::int32_t n = intArg(rt, a[0]);
  if (n < 1 || n > 12) raise(rt::kInvalidProcedureCall);
  const bool abbrev = given(a, 1) && toBool(rt, a[1]);
  std::string name = kMonthNames[n - 1];
  return Variant::str(abbrev ? name.substr(0, 3) : name);
}

Variant fnDateSerial(Runtime& rt, Args& a) {
  std::int32_t y = intArg(rt, a[0]);
  if (y >= 0 && y <= 29) y += 2000;
  else if (y >= 30 && y <= 99) y += 1900;
  return Variant::date(dateSerial(y, intArg(rt, a[1]), intArg(rt, a[2])));
}

Variant fnTimeSerial(Runtime& rt, Args& a) {
  return Variant::date(timeSerial(intArg(rt, a[0]), intArg(rt, a[1]), intArg(rt, a[2])));
}

Variant fnDateValue(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  return Variant::date(std::trunc(dateArg(rt, a[0])));
}

Variant fnTimeValue(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const double d = dateArg(rt, a[0]);
  return Variant::date(std::fabs(d - std::trunc(d)));
}

enum class Interval { Year, Quarter, Month, DayOfYear, Day, Weekday, Week, Hour, Minute, Second };

Interval intervalArg(Runtime& rt, const Variant& v) {
  const std::string s = asciiLower(strArg(rt, v));
  static const std::pair<const char*, Interval> kIntervals[] = {
      {"yyyy", Interval::Year}, {"q", Interval::Quarter}, {"m", Interval::Month},   {"y", Interval::DayOfYear},
      {"d", Interval::Day},     {"w", Interval::Weekday}, {"ww", Interval::Week},   {"h", Interval::Hour},
      {"n", Interval::Minute},  {"s", Interval::Second},
  };
  for (const auto& [name, iv] : kIntervals)
    if (s == name) return iv;
  raise(rt::kInvalidProcedureCall);
}

double addMonths(double serial, long long months) {
  const DateParts p = splitDate(serial);
  const long long total = static_cast<long long>(p.year) * 12 + (p.month - 1) + months;
  const int y = static_cast<int>(total / 12), m = static_cast<int>(total % 12) + 1;
  const int lastDay = splitDate(dateSerial(y, m + 1, 1) - 1).day;
  const double day = dateSerial(y, m, std::min(p.day, lastDay));
  const double time = std::fabs(serial - std::trunc(serial));
  return day < 0 ? day - time : day + time;
}

Variant fnDateAdd(Runtime& rt, Args& a) {
  const Interval iv = intervalArg(rt, a[0]);
  const double n = std::trunc(toDouble(rt, a[1]));
  if (a[2].isNull()) return Variant::null();
  const double d = dateArg(rt, a[2]);
  double r = d;
  switch (iv) {
    case Interval::Year: r = addMonths(d, static_cast<long long>(n) * 12); break;
    case Interval::Quarter: r = addMonths(d, static_cast<long long>(n) * 3); break;
    case Interval::Month: r = addMonths(d, static_cast<long long>(n)); break;
    case Interval::DayOfYear:
    case Interval::Day:
    case Interval::Weekday: r = d + n; break;
    case Interval::Week: r = d + n * 7; break;
    case Interval::Hour: r = d + n / 24.0; break;
    case Interval::Minute: r = d + n / 1440.0; break;
    case Interval::Second: r = d + n / 86400.0; break;
  }
  if (r < -657434.0 || r >= 2958466.0) raise(rt::kInvalidProcedureCall);
  return Variant::date(r);
}

long long secondsOf(double serial) {
  const double day = std::trunc(serial);
  const long long frac = std::llround(std::fabs(serial - day) * 86400.0);
  return static_cast<long long>(day) * 86400 + (serial < 0 ? -frac : frac);
}

Variant fnDateDiff(Runtime& rt, Args& a) {
  const Interval iv = intervalArg(rt, a[0]);
  if (a[1].isNull() || a[2].isNull()) return Variant::null();
  const double d1 = dateArg(rt, a[1]), d2 = dateArg(rt, a[2]);
  const int first = firstDayArg(rt, a, 3);
  const DateParts p1 = splitDate(d1), p2 = splitDate(d2);
  const long long days = static_cast<long long>(std::floor(d2)) - static_cast<long long>(std::floor(d1));
  long long r = 0;
  switch (iv) {
    case Interval::Year: r = p2.year - p1.year; break;
    case Interval::Quarter: r = (p2.year * 4 + (p2.month - 1) / 3) - (p1.year * 4 + (p1.month - 1) / 3); break;
    case Interval::Month: r = (p2.year * 12 + p2.month) - (p1.year * 12 + p1.month); break;
    case Interval::DayOfYear:
    case Interval::Day: r = days; break;
    case Interval::Weekday: r = days / 7; break;
    case Interval::Week: {
      // first-day boundaries crossed
      const long long s1 = static_cast<long long>(std::floor(d1)) - (weekdayOf(d1, first) - 1);
      const long long s2 = static_cast<long long>(std::floor(d2)) - (weekdayOf(d2, first) - 1);
      r = (s2 - s1) / 7;
      break;
    }
    case Interval::Hour: r = secondsOf(d2) / 3600 - secondsOf(d1) / 3600; break;
    case Interval::Minute: r = secondsOf(d2) / 60 - secondsOf(d1) / 60; break;
    case Interval::Second: r = secondsOf(d2) - secondsOf(d1); break;
  }
  return Variant::longv(static_cast<std::int32_t>(r));
}

Variant fnDatePart(Runtime& rt, Args& a) {
  const Interval iv = intervalArg(rt, a[0]);
  if (a[1].isNull()) return Variant::null();
  const double d = dateArg(rt, a[1]);
  const int first = firstDayArg(rt, a, 2);
  const DateParts p = splitDate(d);
  int r = 0;
  switch (iv) {
    case Interval::Year: r = p.year; break;
    case Interval::Quarter: r = (p.month - 1) / 3 + 1; break;
    case Interval::Month: r = p.month; break;
    case Interval::DayOfYear: r = p.dayOfYear; break;
    case Interval::Day: r = p.day; break;
    case Interval::Weekday: r = weekdayOf(d, first); break;
    case Interval::Week: {
      const double jan1 = dateSerial(p.year, 1, 1);
      r = static_cast<int>((p.dayOfYear - 1 + weekdayOf(jan1, first) - 1) / 7) + 1;
      break;
    }
    case Interval::Hour: r = p.hour; break;
    case Interval::Minute: r = p.minute; break;
    case Interval::Second: r = p.second; break;
  }
  return Variant::integer(r);
}

Variant fnFormatDateTime(Runtime& rt, Args& a) {
  if (a[0].isNull()) return Variant::null();
  const double d = dateArg(rt, a[0]);
  const std::int32_t fmt = given(a, 1) ? intArg(rt, a[1]) : 0;
  switch (fmt) {
    case 0: return Variant::str(formatDate(d));
    case 1: return Variant::str(formatLongDate(d));
    case 2: return Variant::str(formatShortDate(d));
    case 3: return Variant::str(formatLongTime(d));
    case 4: return Variant::str(formatShortTime(d));
    default: raise(rt::kInvalidProcedureCall);
  }
}

const Builtin kRows[] = {
    {"Now", 0, 0, fnNow},
    {"Date", 0, 0, fnDate},
    {"Time", 0, 0, fnTime},
    {"Timer", 0, 0, fnTimer},
    {"Year", 1, 1, part<&DateParts::year>},
    {"Month", 1, 1, part<&DateParts::month>},
    {"Day", 1, 1, part<&DateParts::day>},
    {"Hour", 1, 1, part<&DateParts::hour>},
    {"Minute", 1, 1, part<&DateParts::minute>},
    {"Second", 1, 1, part<&DateParts::second>},
    {"Weekday", 1, 2, fnWeekday},
    {"WeekdayName", 1, 3, fnWeekdayName},
    {"MonthName", 1, 2, fnMonthName},
    {"DateSerial", 3, 3, fnDateSerial},
    {"TimeSerial", 3, 3, fnTimeSerial},
    {"DateValue", 1, 1, fnDateValue},
    {"TimeValue", 1, 1, fnTimeValue},
    {"DateAdd", 3, 3, fnDateAdd},
    {"DateDiff", 3, 5, fnDateDiff},
    {"DatePart", 2, 4, fnDatePart},
    {"FormatDateTime", 1, 2, fnFormatDateTime},
};
}  // namespace

Table dateFunctions() { return {kRows, std::size(kRows)}; }

}  // namespace lathwick::vbs::builtin
