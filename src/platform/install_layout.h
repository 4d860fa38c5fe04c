#pragma once
// Where an installed program finds its bundled data, and where each user's own copy of the
// application folder lives. Both are plain path arithmetic over the environment.
#include <string>

namespace lathwick {

// The bundled data folder of an installed program, found from the folder of its executable
// (share/lathwick beside bin/ for the usual layout), with a trailing separator.
std::string installedDataFolder(const std::string& executableFolder);

// The per-user application folder: "lathwick/" under $XDG_DATA_HOME, or under
// $HOME/.local/share when that is not set (an empty or relative value counts as not set).
// Empty when neither variable gives an absolute folder.
std::string userAppFolder(const char* xdgDataHome, const char* home);
std::string userAppFolder();  // from this process's environment

}  // namespace lathwick
