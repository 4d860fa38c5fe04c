#pragma once
// Dates as the language keeps them: a Double counting days from 1899-12-30, the fraction being
// the time of day (for negative serials the fraction still counts forwards from midnight).
#include <optional>
#include <string>
#include <string_view>

namespace lathwick::vbs {

struct DateParts {
  int year = 1899, month = 12, day = 30, hour = 0, minute = 0, second = 0;
  int weekday = 7;  // 1 = Sunday
  int dayOfYear = 364;
};

// Serial from calendar parts; months and days out of range roll over. Throws 5 outside
// the years 100..9999.
double dateSerial(int year, int month, int day);
double timeSerial(int hour, int minute, int second);
DateParts splitDate(double serial);
double nowSerial();

// "1/15/2024", "2024-01-15", "10:30:00 AM", "1/1/2000 10:30 PM", "January 15, 2024" ...
std::optional<double> parseDateText(std::string_view text);

// Short date "m/d/yyyy", long time "h:mm:ss AM"; the general form leaves out a zero part.
std::string formatDate(double serial);
std::string formatShortDate(double serial);
std::string formatLongDate(double serial);
std::string formatLongTime(double serial);
std::string formatShortTime(double serial);

extern const char* const kMonthNames[12];
extern const char* const kDayNames[7];

}  // namespace lathwick::vbs
