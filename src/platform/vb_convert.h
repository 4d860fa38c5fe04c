#pragma once
// Conversions of stored setting text the way the original runtime converted it.
#include <cstdint>
#include <string>
#include <string_view>

namespace lathwick {

// CInt: number text as parseNumberText() reads it (platform/number_text.h), rounded half to
// even; throws AppError 13 for text that is not a number and 6 outside -32768..32767.
std::int16_t toInt16(std::string_view text);
std::int32_t toInt32(std::string_view text);
double toDouble(std::string_view text);  // throws AppError 13 when not numeric

// CBool: "True"/"False" in any case, or any number (non-zero is true); throws AppError 13.
bool toBool(std::string_view text);

// How Booleans are stored: the words True and False.
inline std::string boolText(bool b) { return b ? "True" : "False"; }

// Plain decimal text of a single-precision value as the runtime prints it ("50", "1234.5").
std::string singleText(double value);

}  // namespace lathwick
