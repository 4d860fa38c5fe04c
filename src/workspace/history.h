#pragma once
// Most-recently-used lists kept in the settings store: the combo-box histories (section and
// keys named after the box, exact comparison) and the recent-file list (section "RecentFiles",
// keys "RecentFile1".., comparison ignoring case, only for files that exist).
#include <string>
#include <vector>

#include "platform/settings_store.h"

namespace lathwick {

inline constexpr int kSearchHistoryLength = 10;
inline constexpr int kRecentFileCount = 8;

// Moves `text` to the top of the history of box `boxName` (keys boxName + 1..n). Nothing
// happens when the text is empty or already first.
void HistoryUpdate(SettingsStore& store, const std::string& boxName, const std::string& text, int n);

// The entries to put in the box, in list order (first = most recent), empty values skipped.
std::vector<std::string> HistoryLoad(const SettingsStore& store, const std::string& boxName);

// Moves `name` to the top of the recent-file list when fileExists(name) is true. Returns
// whether the list was touched (the caller then rebuilds the recent menus).
bool RecentListUpdate(SettingsStore& store, const std::string& name, bool fileExists);

// Recent menu captions: "&" + i + " " + ShortenPath(path, 25) for the main window, two blanks
// after the number for document windows. Empty when "RecentFile1" is empty.
struct RecentEntry {
  std::string caption;
  std::string path;
};
std::vector<RecentEntry> RecentMenuEntries(const SettingsStore& store, bool documentWindow);

}  // namespace lathwick
