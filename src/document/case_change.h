#pragma once
// The Edit menu's case commands on a byte string (ASCII letters only change case).
#include <string>
#include <string_view>

namespace lathwick {

// First letter of each word upper, the rest lower. A word begins after a blank, tab, CR, LF,
// vertical tab, form feed or NUL, so "g01x10 y5" becomes "G01x10 Y5".
std::string properCase(std::string_view text);

}  // namespace lathwick
