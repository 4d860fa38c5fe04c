#pragma once
// Every persistent setting of the program, with its section, key and default, and typed views
// of the groups that windows and dialogs read and write together.
#include <array>
#include <string>
#include <string_view>

#include "platform/settings_store.h"

namespace lathwick {

struct SettingRow {
  const char* section;
  const char* key;
  const char* defaultValue;  // nullptr: the default depends on the machine (see below)
  const char* meaning;
};

// The settings table. Rows whose default depends on the screen or the executable's folder have
// a null default; the typed readers below supply those.
extern const std::array<SettingRow, 28> kSettingsTable;

// Looks up a fixed default in the table ("" for unknown keys and machine-dependent ones).
std::string settingDefault(std::string_view section, std::string_view key);

inline constexpr const char* kStartup = "Startup";
inline constexpr const char* kRecentFiles = "RecentFiles";
inline constexpr const char* kNumbering = "Numbering";
inline constexpr const char* kOperate = "Operate";

// Main window settings, read at load and written at close.
struct FrameSettings {
  bool toolbar = true;
  bool status = true;
  bool autoFormat = false;
  bool lineNumbers = true;   // the documents' line-number margin
  bool toolbarText = false;  // names under the toolbar icons
  int windowState = 0;  // 0 normal, 1 minimised, 2 maximised
  double left = 50, top = 50, width = 0, height = 0;  // twips
  std::array<std::string, 4> quickFolders;
  std::string lastPath;
  int record = 1;  // current scheme
};

// Reads every main-window setting; unreadable values fall back to their defaults.
// The screen size is in twips; `exeFolder` is the default of "LastPath".
FrameSettings readFrameSettings(const SettingsStore& store, double screenWidth, double screenHeight,
                                const std::string& exeFolder);
void writeFrameSettings(SettingsStore& store, const FrameSettings& settings);

struct NumberingSettings {
  std::string character = "N", increment = "1", skipLines = "%", start = "100";
  int method = 2;
  bool updateReferences = false;
};
NumberingSettings readNumberingSettings(const SettingsStore& store);
void writeNumberingSettings(SettingsStore& store, const NumberingSettings& settings);

// The search dialog's option flags ("search"); an unreadable value counts as no options.
int readSearchFlags(const SettingsStore& store);
void writeSearchFlags(SettingsStore& store, int flags);

// The operate dialog's remembered address letters and operator.
struct OperateSettings {
  std::string address = "XYZ";
  std::string op = "*";
};
OperateSettings readOperateSettings(const SettingsStore& store);
void writeOperateSettings(SettingsStore& store, const OperateSettings& settings);

}  // namespace lathwick
