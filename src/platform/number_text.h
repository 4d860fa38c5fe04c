#pragma once
// The one reader of number text, shared by the settings readers, the dialogs' fields and the
// macro language, so that every part of the program takes the same text as the same number.
#include <optional>
#include <string_view>

namespace lathwick {

// Blanks (spaces, tabs) around; an optional sign, digits with an optional decimal point and an
// optional exponent written with E or D ("1D2" is 100); or "&H" / "&O" / "&" with hexadecimal or
// octal digits. Hexadecimal of up to four digits and octal up to &O177777 are 16-bit values
// ("&HFFFF" is -1), longer ones 32-bit ("&HFFFFFFFF" is -1). Nothing when the text is not a
// number, is out of range or overflows a Double.
std::optional<double> parseNumberText(std::string_view text);

}  // namespace lathwick
