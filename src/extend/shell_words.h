#pragma once
// Splits a parameter text into words as a POSIX shell does, without expanding anything: blanks
// and tabs separate words; single quotes keep everything up to the next single quote; double
// quotes keep everything but a backslash before "$", "`", '"', "\" or a line break; a backslash
// outside quotes keeps the next character. Nothing is run and nothing is substituted.
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace lathwick::extend {

// Nothing when a quote is left open or the text ends in a lone backslash.
std::optional<std::vector<std::string>> splitShellWords(std::string_view text);

}  // namespace lathwick::extend
