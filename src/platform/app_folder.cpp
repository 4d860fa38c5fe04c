#include "platform/app_folder.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <stdexcept>
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

namespace {
// What the program keeps in its application folder, beside its own work files.
constexpr std::array<const char*, 2> kDataExtensions = {".dat", ".dis"};
constexpr std::array<const char*, 1> kDataFiles = {"Readme.txt"};
constexpr std::array<const char*, 3> kDataFolders = {"Script", "help", "samples"};

std::string lowerAscii(std::string s) {
  for (char& c : s)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return s;
}

bool isDataFile(const fs::path& name) {
  const std::string ext = lowerAscii(name.extension().string());
  return std::find(kDataExtensions.begin(), kDataExtensions.end(), ext) != kDataExtensions.end() ||
         std::find(kDataFiles.begin(), kDataFiles.end(), name.string()) != kDataFiles.end();
}

bool isDataFolder(const fs::path& name) {
  return std::find(kDataFolders.begin(), kDataFolders.end(), name.string()) != kDataFolders.end();
}

// Copies one file unless the destination has it; true when it was copied.
bool copyIfMissing(const fs::path& from, const fs::path& to) {
  std::error_code ec;
  if (fs::exists(fs::symlink_status(to, ec))) return false;
  fs::create_directories(to.parent_path(), ec);
  if (!copyFile(from.string(), to.string())) throw std::runtime_error("Unable to copy " + from.string() + " to " + to.string());
  return true;
}

int fillFolder(const fs::path& from, const fs::path& to) {
  int copied = 0;
  std::error_code ec;
  for (const auto& entry : fs::recursive_directory_iterator(from, ec))
    if (entry.is_regular_file(ec)) copied += copyIfMissing(entry.path(), to / entry.path().lexically_relative(from));
  return copied;
}
}  // namespace

int fillAppFolder(const std::string& from, const std::string& to) {
  const fs::path source(nativePath(from)), target(nativePath(to));
  std::error_code ec;
  fs::create_directories(target, ec);
  if (!fs::is_directory(target, ec)) throw std::runtime_error("Unable to create the folder " + target.string());
  int copied = 0;
  for (const auto& entry : fs::directory_iterator(source, ec)) {
    const fs::path name = entry.path().filename();
    if (entry.is_directory(ec) && isDataFolder(name))
      copied += fillFolder(entry.path(), target / name);
    else if (entry.is_regular_file(ec) && isDataFile(name))
      copied += copyIfMissing(entry.path(), target / name);
  }
  return copied;
}

}  // namespace lathwick
