#pragma once
// Path helpers for document names. Both "\" and "/" count as folder separators.
#include <string>

namespace lathwick {

// Trims the caller's path in place and returns what follows the last separator or ":";
// a name with neither gives "" (deliberately not the whole name).
std::string FileNameOf(std::string& path);

// Trims in place; everything up to and including the last separator, or the whole path.
std::string PathOf(std::string& path);

// When the fourth character from the end is ".", the last four characters are overwritten by
// "." + extension (at most four characters written); otherwise "." + extension is appended.
void ChangeExtension(std::string& path, const std::string& extension);

// Shortens a path for captions and menus: the root ("C:\" of a drive, or the first folder, as
// "/home" or "jobs"), " ...", and the tail from the first separator found at or after position
// length - maximum + 6 (1-based). The file name itself is always kept: with no separator in that
// range the tail is the last separator and the name; a path that cannot be shortened that way
// stays whole.
std::string ShortenPath(const std::string& path, int maximum);

}  // namespace lathwick
