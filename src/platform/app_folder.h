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

// Copies into `to` the program's data files from the application folder `from` that `to` does
// not have yet: the scheme data file and other "*.dat" files, the easy-text files "*.dis",
// "Readme.txt", and the folders "Script", "help" and "samples" with everything in them. A file
// already in `to` is never replaced, however old, so the user's edits survive an upgrade; a
// file the program added since the last start is copied. Work files, executables and anything
// else in `from` are left alone. Returns how many files were copied; throws std::runtime_error
// naming the file when a folder cannot be made or a file cannot be copied.
int fillAppFolder(const std::string& from, const std::string& to);

}  // namespace lathwick
