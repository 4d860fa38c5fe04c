#include "platform/app_folder.h"

#include <filesystem>
#include <system_error>

#include "platform/bytes.h"
#include "platform/file_system.h"

namespace fs = std::filesystem;

namespace lathwick {

namespace {
bool isNormalEntry(const fs::directory_entry& entry, std::error_code& ec) {
  const std::string name = entry.path().filename().string();
  return !name.empty() && name[0] != '.' && entry.is_regular_file(ec);
}
}  // namespace

bool FileExists(std::string_view path) {
  const std::string p = trimBlanks(path);
  if (p.empty()) return false;
  const char last = p.back();
  if (isPathSeparator(last) || last == ':') return false;
  try {
    const fs::path native(nativePath(p));
    const std::string name = native.filename().string();
    std::error_code ec;
    if (name.find_first_of("*?") == std::string::npos) {
      const fs::directory_entry entry(native, ec);
      return !ec && isNormalEntry(entry, ec) && !ec;
    }
    fs::path folder = native.parent_path();
    if (folder.empty()) folder = ".";
    for (const auto& entry : fs::directory_iterator(folder, ec)) {
      const std::string candidate = entry.path().filename().string();
      if (likePattern(candidate, name) && isNormalEntry(entry, ec)) return true;
    }
    return false;
  } catch (...) {
    return false;
  }
}

std::string WithBackslash(std::string_view path) {
  std::string p = trimBlanks(path);
  if (p.empty()) return p;
  if (!isPathSeparator(p.back())) p += kNativeSeparator;
  return p;
}

}  // namespace lathwick
