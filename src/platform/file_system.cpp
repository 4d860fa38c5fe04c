#include "platform/file_system.h"

#include <unistd.h>

#include <array>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "platform/atomic_file.h"

namespace fs = std::filesystem;

namespace lathwick {

std::string nativePath(std::string_view path) {
  std::string out(path);
  for (char& c : out)
    if (c == '\\') c = '/';
  return out;
}

std::string executableFolder() {
  std::error_code ec;
  fs::path exe = fs::read_symlink("/proc/self/exe", ec);
  if (ec) return fs::current_path(ec).string();
  return exe.parent_path().string();
}

bool isRegularFile(const std::string& path) {
  std::error_code ec;
  return fs::is_regular_file(nativePath(path), ec);
}

bool isReadOnlyFile(const std::string& path) {
  std::error_code ec;
  const fs::file_status status = fs::status(nativePath(path), ec);
  if (ec || !fs::is_regular_file(status)) return false;
  const auto write = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  return (status.permissions() & write) == fs::perms::none;
}

bool isDirectory(const std::string& path) {
  std::error_code ec;
  return fs::is_directory(nativePath(path), ec);
}

std::optional<std::string> readWholeFile(const std::string& path) {
  std::FILE* f = std::fopen(nativePath(path).c_str(), "rb");
  if (!f) return std::nullopt;
  std::string out;
  std::error_code ec;
  const auto size = fs::file_size(nativePath(path), ec);
  if (!ec) out.reserve(static_cast<std::size_t>(size));  // one allocation for large files
  std::array<char, 65536> buf;
  size_t n;
  while ((n = std::fread(buf.data(), 1, buf.size(), f)) > 0) out.append(buf.data(), n);
  const bool bad = std::ferror(f);
  std::fclose(f);
  if (bad) return std::nullopt;
  return out;
}

bool removeFile(const std::string& path) {
  std::error_code ec;
  fs::remove(nativePath(path), ec);
  return !fs::exists(nativePath(path), ec);
}

bool copyFile(const std::string& from, const std::string& to, Durability durability) {
  std::FILE* in = std::fopen(nativePath(from).c_str(), "rb");
  if (!in) return false;
  bool ok = true;
  try {
    AtomicFileWriter out(to, durability);
    std::array<char, 65536> buf;
    size_t n;
    while ((n = std::fread(buf.data(), 1, buf.size(), in)) > 0) out.write(std::string_view(buf.data(), n));
    ok = !std::ferror(in);
    if (ok) out.commit();
  } catch (...) {
    ok = false;
  }
  std::fclose(in);
  return ok;
}

long long fileSize(const std::string& path) {
  std::error_code ec;
  const auto size = fs::file_size(nativePath(path), ec);
  return ec ? -1 : static_cast<long long>(size);
}

bool isWritableFolder(const std::string& path) {
  std::error_code ec;
  const fs::path folder(nativePath(path));
  const fs::file_status st = fs::status(folder, ec);
  if (ec || !fs::is_directory(st)) return false;
  const auto writeBits = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
  if ((st.permissions() & writeBits) == fs::perms::none) return false;
  return ::access(folder.c_str(), W_OK) == 0;
}

}  // namespace lathwick
