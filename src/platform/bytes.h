#pragma once
// Byte-string helpers with the conventions of the original ANSI program: one byte is one
// character, case changes touch the ASCII letters only, and "trim" removes blanks (32) only.
#include <string>
#include <string_view>

namespace lathwick {

char asciiUpper(char c);
char asciiLower(char c);
std::string asciiUpper(std::string_view s);
std::string asciiLower(std::string_view s);
bool equalsIgnoreCase(std::string_view a, std::string_view b);
bool endsWithIgnoreCase(std::string_view s, std::string_view suffix);

std::string trimBlanks(std::string_view s);
std::string trimLeftBlanks(std::string_view s);
std::string trimRightBlanks(std::string_view s);

// Both "\" and "/" separate folders, whatever system the path came from.
inline bool isPathSeparator(char c) { return c == '\\' || c == '/'; }
inline constexpr char kNativeSeparator = '/';

// VB-style Like matching with "*", "?" and "#" (no character lists), case-sensitive.
bool likePattern(std::string_view text, std::string_view pattern);

}  // namespace lathwick
