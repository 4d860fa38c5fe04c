#include "platform/install_layout.h"

#include <cstdlib>
#include <filesystem>

#ifndef LATHWICK_DATA_FROM_BIN
#define LATHWICK_DATA_FROM_BIN "../share/lathwick"
#endif

namespace fs = std::filesystem;

namespace lathwick {

namespace {
bool isAbsolute(const char* path) { return path != nullptr && path[0] == '/'; }
}  // namespace

std::string installedDataFolder(const std::string& executableFolder) {
  const fs::path folder = (fs::path(executableFolder) / LATHWICK_DATA_FROM_BIN).lexically_normal();
  std::string out = folder.string();
  if (out.empty() || out.back() != '/') out += '/';
  return out;
}

std::string userAppFolder(const char* xdgDataHome, const char* home) {
  if (isAbsolute(xdgDataHome)) return (fs::path(xdgDataHome) / "lathwick").lexically_normal().string() + "/";
  if (isAbsolute(home)) return (fs::path(home) / ".local/share/lathwick").lexically_normal().string() + "/";
  return "";
}

std::string userAppFolder() { return userAppFolder(std::getenv("XDG_DATA_HOME"), std::getenv("HOME")); }

}  // namespace lathwick
