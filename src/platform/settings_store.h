#pragma once
// The per-user settings store: sections of string values, kept as an INI file. Keys keep the
// order in which they were first stored (the histories and the recent-file menus depend on
// it). Every save rewrites the file through a temporary file and a rename.
#include <string>
#include <utility>
#include <vector>

namespace lathwick {

using SettingPairs = std::vector<std::pair<std::string, std::string>>;

class SettingsStore {
 public:
  // Loads `path` if it exists; a missing or unreadable file is an empty store.
  explicit SettingsStore(std::string path);

  // Section and key names compare without regard to ASCII case, as the original store did.
  std::string get(const std::string& section, const std::string& key,
                  const std::string& defaultValue = {}) const;
  bool has(const std::string& section, const std::string& key) const;
  void save(const std::string& section, const std::string& key, const std::string& value);
  SettingPairs all(const std::string& section) const;  // stored order
  void deleteAll();                                     // every section, and the file itself

  const std::string& path() const { return path_; }

  // "$XDG_CONFIG_HOME/Lathwick/Lathwick.ini", or "~/.config/Lathwick/Lathwick.ini".
  static std::string defaultPath();

 private:
  struct Section {
    std::string name;
    SettingPairs pairs;
  };
  Section* find(const std::string& section);
  const Section* find(const std::string& section) const;
  void load();
  void write() const;

  std::string path_;
  std::vector<Section> sections_;
};

}  // namespace lathwick
