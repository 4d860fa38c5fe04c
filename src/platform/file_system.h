#pragma once
// The operating-system seam of the core: where the executable lives, whether a file is there,
// reading a file whole. Paths may use "\" or "/"; they are made native before the system sees them.
#include <optional>
#include <string>

#include "platform/atomic_file.h"

namespace lathwick {

std::string nativePath(std::string_view path);   // every "\" becomes "/"
std::string executableFolder();                    // without a trailing separator
bool isRegularFile(const std::string& path);       // follows links; folders are not files
bool isDirectory(const std::string& path);
// True when the file is there and marked read-only (no write permission for anyone), which the
// program respects even where the system would let it write.
bool isReadOnlyFile(const std::string& path);
std::optional<std::string> readWholeFile(const std::string& path);
bool removeFile(const std::string& path);          // true when it is gone afterwards
// Atomic at the destination; a work file the program makes for itself need not wait for the disk.
bool copyFile(const std::string& from, const std::string& to, Durability durability = Durability::Durable);
long long fileSize(const std::string& path);       // -1 when it cannot be read
// True when files can be made in the folder: the system allows it and the folder's own
// permissions give someone write access, so a folder made read-only counts as read-only even
// for the administrator, who could write there anyway.
bool isWritableFolder(const std::string& path);

}  // namespace lathwick
