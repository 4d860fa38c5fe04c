#pragma once
// Conversions between Variant subtypes, as used implicitly by operators and explicitly by the
// C* functions: banker's rounding, number text with 15 significant digits, numeric text parsing.
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "extend/vbscript/variant.h"
#include "platform/number_text.h"

namespace lathwick::vbs {

class Runtime;

double bankersRound(double v);
// Number text as the language prints it: 15 significant digits (7 for Single), no trailing
// zeros, exponent form from 1E+15 up or when the fixed form would need more than 15 decimals.
std::string numberText(double v, bool single = false);
// Numeric text is read by parseNumberText() (platform/number_text.h).

// The value of an object by its default member (91 for Nothing, 438 without a default);
// other values are returned unchanged.
Variant valueOf(Runtime& rt, const Variant& v);

double toDouble(Runtime& rt, const Variant& v);          // Null -> 94, bad text -> 13
std::int32_t toLong(Runtime& rt, const Variant& v);      // banker's rounding, 6 outside 32 bits
std::int32_t toInteger(Runtime& rt, const Variant& v);   // 6 outside 16 bits
bool toBool(Runtime& rt, const Variant& v);              // CBool rules
std::string toStr(Runtime& rt, const Variant& v);        // CStr rules (Null -> 94)
double toDate(Runtime& rt, const Variant& v);            // CDate rules
// Text of a value that is not an object/array/Null (Empty gives "").
std::string plainText(const Variant& v);
// Condition of If/While/Do: Null and Empty are false; strings as CBool.
bool truthOf(Runtime& rt, const Variant& v);
// Number for arithmetic: keeps integral types, converts text to Double (13 when not numeric).
Variant toNumeric(Runtime& rt, const Variant& v);

}  // namespace lathwick::vbs
