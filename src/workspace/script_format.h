#pragma once
// The two runtime services the "Application" object lends to macros: the Like pattern test and
// the Format function, which the macro language itself does not have.
#include <string>
#include <string_view>

namespace lathwick {

// The Like pattern language, compared case-sensitively: "?" any one character, "*" any run,
// "#" one digit, "[list]" one character of the list (ranges "a-z"), "[!list]" one not in it.
// A descending range such as "+-*" stands for its characters themselves.
bool likeMatch(std::string_view text, std::string_view pattern);

// Format for a number: a picture of "0", "#", ".", "," and literal characters ("##0.0###",
// "0000", "#,##0.00"), or the named formats "General Number", "Fixed", "Standard", "Percent".
std::string formatNumber(double value, std::string_view format);
// Format for a date serial: "yyyy", "yy", "mmmm", "mmm", "mm", "m", "dddd", "ddd", "dd", "d",
// "hh", "h", "nn", "n", "ss", "s", "w", "ww", "q", "y" and literal characters; weeks start on
// Sunday and the week of January 1 is week 1.
std::string formatDateSerial(double serial, std::string_view format);
// True when the format reads as a date picture rather than a number picture.
bool isDateFormat(std::string_view format);

}  // namespace lathwick
