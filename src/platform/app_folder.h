#pragma once
// The two path helpers the whole program uses to find its data files.
#include <string>
#include <string_view>

namespace lathwick {

// True when the trimmed path is not empty, does not end in a separator or ":", and names a
// normal file: folders, hidden (dot) files and unreadable paths give false. A "*" or "?" in the
// last component matches like a directory search does.
bool FileExists(std::string_view path);

// Trims blanks; empty stays empty; otherwise a separator is appended unless one ends it already.
std::string WithBackslash(std::string_view path);

}  // namespace lathwick
