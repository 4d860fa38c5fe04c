#pragma once
// Every persistent setting of the program, with its section, key and default, and typed views
// of the groups that windows and dialogs read and write together.
#include <array>
#include <cstddef>
#include <string>

#include "platform/settings_store.h"

namespace lathwick {

// Every persistent setting by name, in the order of kSettingsTable. Code that reads or writes a
// setting names it here; the table gives its section, key and default, so that no key or
// default is written twice.
enum class Setting {
  AppPath, Record, LastPath, Toolbar, Status, Auto, LineNumbers, ToolbarText, WindowState, Left, Top, Width,
  Height, QuickFolder1, QuickFolder2, QuickFolder3, QuickFolder4, PrintProgram, Search,
  NumberingCharacter, NumberingIncrement, NumberingSkipLines, NumberingStart, NumberingMethod,
  NumberingUpdateReferences,
  OperateOperators, OperateAddress,
  RecentFile1,
  GraphicsView, GraphicsShowRapids, GraphicsRapidColour, GraphicsFeedColour, GraphicsArcCwColour,
  GraphicsArcCcwColour, GraphicsBackColour,
};
inline constexpr std::size_t kSettingCount = static_cast<std::size_t>(Setting::GraphicsBackColour) + 1;

struct SettingRow {
  Setting setting;
  const char* section;
  const char* key;
  const char* defaultValue;  // nullptr: the default depends on the machine (see below)
  const char* meaning;
};

// The settings table. Rows whose default depends on the screen or the executable's folder have
// a null default; the typed readers below supply those.
extern const std::array<SettingRow, kSettingCount> kSettingsTable;

const SettingRow& settingRow(Setting setting);
// The fixed default ("" for a machine-dependent one).
std::string settingDefault(Setting setting);
// The stored text, or the default when nothing is stored (`machineDefault` for a row without a
// fixed one).
std::string readSetting(const SettingsStore& store, Setting setting, const std::string& machineDefault = {});
bool isSettingStored(const SettingsStore& store, Setting setting);
void writeSetting(SettingsStore& store, Setting setting, const std::string& value);

// The section of the recent files, whose keys are made as they are needed (the histories are
// sections named after their boxes).
inline constexpr const char* kRecentFiles = "RecentFiles";
// "RecentFile1" to "RecentFile8": this and the number.
inline constexpr const char* kRecentFileKey = "RecentFile";

// Main window settings, read at load and written at close. The readers give every field its
// default from the table; a struct made otherwise starts empty.
struct FrameSettings {
  bool toolbar = false;
  bool status = false;
  bool autoFormat = false;
  bool lineNumbers = false;  // the documents' line-number margin
  bool toolbarText = false;  // names under the toolbar icons
  int windowState = 0;  // 0 normal, 1 minimised, 2 maximised
  double left = 0, top = 0, width = 0, height = 0;  // twips
  std::array<std::string, 4> quickFolders;
  std::string lastPath;
  int record = 0;  // current scheme
};

// Reads every main-window setting; unreadable values fall back to their defaults.
// The screen size is in twips; `exeFolder` is the default of "LastPath".
FrameSettings readFrameSettings(const SettingsStore& store, double screenWidth, double screenHeight,
                                const std::string& exeFolder);
void writeFrameSettings(SettingsStore& store, const FrameSettings& settings);

struct NumberingSettings {
  std::string character, increment, skipLines, start;
  int method = 0;  // 0 to 2; a stored value out of range reads as the default
  bool updateReferences = false;
};
NumberingSettings readNumberingSettings(const SettingsStore& store);
void writeNumberingSettings(SettingsStore& store, const NumberingSettings& settings);

// The search dialog's option flags ("search"); an unreadable value counts as no options.
int readSearchFlags(const SettingsStore& store);
void writeSearchFlags(SettingsStore& store, int flags);

// The operate dialog's remembered address letters and operator.
struct OperateSettings {
  std::string address;
  std::string op;
};
OperateSettings readOperateSettings(const SettingsStore& store);
void writeOperateSettings(SettingsStore& store, const OperateSettings& settings);

}  // namespace lathwick
