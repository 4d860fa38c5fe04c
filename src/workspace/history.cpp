#include "workspace/history.h"

#include "document/paths.h"
#include "platform/bytes.h"
#include "platform/settings_table.h"

namespace lathwick {

namespace {
// The shared walk: from the oldest slot to the newest, entries after an older copy of the new
// text move down one slot, which closes the gap that copy leaves. Returns whether it was found.
template <typename Same>
bool closeGap(SettingsStore& store, const std::string& section, const std::string& prefix,
              const std::string& text, int n, Same same) {
  bool found = false;
  for (int i = n; i >= 1; --i) {
    std::string key = prefix + std::to_string(i);
    const std::string value = store.get(section, key);
    if (found) key = prefix + std::to_string(i + 1);
    if (same(value, text)) found = true;
    if (!value.empty()) store.save(section, key, value);
  }
  return found;
}
}  // namespace

void HistoryUpdate(SettingsStore& store, const std::string& boxName, const std::string& text, int n) {
  if (text.empty() || store.get(boxName, boxName + "1") == text) return;
  const auto exact = [](const std::string& a, const std::string& b) { return a == b; };
  if (!closeGap(store, boxName, boxName, text, n, exact)) {
    // Without an older copy every entry moves down and the oldest drops off; empty values
    // are copied too here.
    for (int i = n - 1; i >= 1; --i)
      store.save(boxName, boxName + std::to_string(i + 1), store.get(boxName, boxName + std::to_string(i)));
  }
  store.save(boxName, boxName + "1", text);
}

std::vector<std::string> HistoryLoad(const SettingsStore& store, const std::string& boxName) {
  // Stored pairs are added to the box from the last back to the first.
  const SettingPairs pairs = store.all(boxName);
  std::vector<std::string> entries;
  for (auto it = pairs.rbegin(); it != pairs.rend(); ++it)
    if (!it->second.empty()) entries.push_back(it->second);
  return entries;
}

bool RecentListUpdate(SettingsStore& store, const std::string& name, bool fileExists) {
  if (!fileExists) return false;
  const std::string prefix = kRecentFileKey;
  const auto sameFile = [](const std::string& a, const std::string& b) { return equalsIgnoreCase(a, b); };
  if (!closeGap(store, kRecentFiles, prefix, name, kRecentFileCount, sameFile)) {
    for (int i = kRecentFileCount - 1; i >= 1; --i) {
      const std::string value = store.get(kRecentFiles, prefix + std::to_string(i));
      if (!value.empty()) store.save(kRecentFiles, prefix + std::to_string(i + 1), value);
    }
  }
  store.save(kRecentFiles, prefix + "1", name);
  return true;
}

std::vector<RecentEntry> RecentMenuEntries(const SettingsStore& store, bool documentWindow) {
  std::vector<RecentEntry> entries;
  if (readSetting(store, Setting::RecentFile1).empty()) return entries;
  const char* gap = documentWindow ? "  " : " ";
  int i = 0;
  for (const auto& [key, path] : store.all(kRecentFiles)) {
    ++i;
    entries.push_back({"&" + std::to_string(i) + gap + ShortenPath(path, 25), path});
  }
  return entries;
}

}  // namespace lathwick
