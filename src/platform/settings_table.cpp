#include "platform/settings_table.h"

#include "platform/bytes.h"
#include "platform/vb_convert.h"

namespace lathwick {

namespace {
constexpr const char* kStartup = "Startup";
constexpr const char* kNumbering = "Numbering";
constexpr const char* kOperate = "Operate";
constexpr const char* kGraphics = "Graphics";
}  // namespace

constexpr std::array<SettingRow, kSettingCount> kSettingsTable = {{
    {Setting::AppPath, kStartup, "app_path", "", "application folder"},
    {Setting::Record, kStartup, "record", "1", "current scheme number"},
    {Setting::LastPath, kStartup, "LastPath", nullptr,
     "folder shown first by the file dialogs (the executable's folder)"},
    {Setting::Toolbar, kStartup, "Toolbar", "True", "toolbar visible"},
    {Setting::Status, kStartup, "Status", "True", "status bar visible"},
    {Setting::Auto, kStartup, "Auto", "False", "auto format on"},
    {Setting::LineNumbers, kStartup, "LineNumbers", "True", "line-number margin of the documents shown"},
    {Setting::ToolbarText, kStartup, "ToolbarText", "False", "toolbar buttons show their names under the icons"},
    {Setting::WindowState, kStartup, "WindowState", "0", "main window state: 0 normal, 1 minimised, 2 maximised"},
    {Setting::Left, kStartup, "left", "50", "main window left in twips"},
    {Setting::Top, kStartup, "top", "50", "main window top in twips"},
    {Setting::Width, kStartup, "width", nullptr, "main window width in twips (screen width - 50)"},
    {Setting::Height, kStartup, "height", nullptr, "main window height in twips (screen height - 50)"},
    {Setting::QuickFolder1, kStartup, "QuickFolder1", "Folder1", "first folder of the Open button's list"},
    {Setting::QuickFolder2, kStartup, "QuickFolder2", "Folder2", "second folder of the Open button's list"},
    {Setting::QuickFolder3, kStartup, "QuickFolder3", "Folder3", "third folder of the Open button's list"},
    {Setting::QuickFolder4, kStartup, "QuickFolder4", "Folder4", "fourth folder of the Open button's list"},
    {Setting::PrintProgram, kStartup, "PrintProgram", "Wordpad",
     "program used to print rich text (the default: the editor prints it itself)"},
    {Setting::Search, kStartup, "search", "0", "search option flags"},
    {Setting::NumberingCharacter, kNumbering, "Character", "N", "renumber: sequence character"},
    {Setting::NumberingIncrement, kNumbering, "Increment", "1", "renumber: increment"},
    {Setting::NumberingSkipLines, kNumbering, "SkipLines", "%", "renumber: skip characters"},
    {Setting::NumberingStart, kNumbering, "Start", "100", "renumber: start number"},
    {Setting::NumberingMethod, kNumbering, "Method", "2", "renumber: method (2 = all non-comment lines)"},
    {Setting::NumberingUpdateReferences, kNumbering, "UpdateReferences", "False",
     "renumber: rewrite the words that name a renumbered block"},
    {Setting::OperateOperators, kOperate, "Operators", "*", "operate: operator"},
    {Setting::OperateAddress, kOperate, "Address", "XYZ", "operate: address letters"},
    {Setting::RecentFile1, kRecentFiles, "RecentFile1", "", "most recent file (RecentFile1 to RecentFile8)"},
    {Setting::GraphicsView, kGraphics, "View", "3", "tool-path view: 0 top, 1 front, 2 side, 3 isometric"},
    {Setting::GraphicsShowRapids, kGraphics, "ShowRapids", "1", "tool path: rapid moves drawn (1) or not (0)"},
    {Setting::GraphicsRapidColour, kGraphics, "RapidColour", "-1", "tool path: rapids' colour (-1: the scheme's)"},
    {Setting::GraphicsFeedColour, kGraphics, "FeedColour", "-1", "tool path: feeds' colour (-1: the scheme's)"},
    {Setting::GraphicsArcCwColour, kGraphics, "ArcCwColour", "-1", "tool path: clockwise arcs' colour"},
    {Setting::GraphicsArcCcwColour, kGraphics, "ArcCcwColour", "-1", "tool path: counter-clockwise arcs' colour"},
    {Setting::GraphicsBackColour, kGraphics, "BackColour", "-1", "tool path: background (-1: the scheme's page)"},
}};

namespace {
// Every row stands at the place of its name, so that settingRow is an index.
constexpr bool rowsInOrder() {
  for (std::size_t i = 0; i < kSettingsTable.size(); ++i)
    if (static_cast<std::size_t>(kSettingsTable[i].setting) != i) return false;
  return true;
}
static_assert(rowsInOrder(), "kSettingsTable must list the settings in the order of enum Setting");
}  // namespace

const SettingRow& settingRow(Setting setting) { return kSettingsTable[static_cast<std::size_t>(setting)]; }

std::string settingDefault(Setting setting) {
  const char* value = settingRow(setting).defaultValue;
  return value ? value : "";
}

std::string readSetting(const SettingsStore& store, Setting setting, const std::string& machineDefault) {
  const SettingRow& row = settingRow(setting);
  return store.get(row.section, row.key, row.defaultValue ? std::string(row.defaultValue) : machineDefault);
}

bool isSettingStored(const SettingsStore& store, Setting setting) {
  const SettingRow& row = settingRow(setting);
  return store.has(row.section, row.key);
}

void writeSetting(SettingsStore& store, Setting setting, const std::string& value) {
  const SettingRow& row = settingRow(setting);
  store.save(row.section, row.key, value);
}

namespace {
// The stored value converted; the default (converted the same way) when nothing is stored or
// the stored text does not convert.
template <typename T, typename Convert>
T readOr(const SettingsStore& store, Setting setting, T machineDefault, Convert convert) {
  const char* fixed = settingRow(setting).defaultValue;
  const T fallback = fixed ? convert(fixed) : machineDefault;
  if (!isSettingStored(store, setting)) return fallback;
  try {
    return convert(readSetting(store, setting));
  } catch (...) {
    return fallback;
  }
}

bool readBool(const SettingsStore& s, Setting setting) {
  return readOr(s, setting, false, [](const std::string& t) { return toBool(t); });
}
double readNumber(const SettingsStore& s, Setting setting, double machineDefault = 0) {
  return readOr(s, setting, machineDefault, [](const std::string& t) { return toDouble(t); });
}
int readShort(const SettingsStore& s, Setting setting) {
  return readOr(s, setting, 0, [](const std::string& t) { return int(toInt16(t)); });
}

constexpr std::array<Setting, 4> kQuickFolders = {Setting::QuickFolder1, Setting::QuickFolder2,
                                                  Setting::QuickFolder3, Setting::QuickFolder4};
}  // namespace

FrameSettings readFrameSettings(const SettingsStore& store, double screenWidth, double screenHeight,
                                const std::string& exeFolder) {
  FrameSettings f;
  f.toolbar = readBool(store, Setting::Toolbar);
  f.status = readBool(store, Setting::Status);
  f.autoFormat = readBool(store, Setting::Auto);
  f.lineNumbers = readBool(store, Setting::LineNumbers);
  f.toolbarText = readBool(store, Setting::ToolbarText);
  f.windowState = static_cast<int>(readNumber(store, Setting::WindowState));
  f.left = readNumber(store, Setting::Left);
  f.top = readNumber(store, Setting::Top);
  f.width = readNumber(store, Setting::Width, screenWidth - 50);
  f.height = readNumber(store, Setting::Height, screenHeight - 50);
  for (std::size_t n = 0; n < kQuickFolders.size(); ++n) f.quickFolders[n] = readSetting(store, kQuickFolders[n]);
  f.lastPath = readSetting(store, Setting::LastPath, exeFolder);
  f.record = readShort(store, Setting::Record);
  return f;
}

void writeFrameSettings(SettingsStore& store, const FrameSettings& f) {
  writeSetting(store, Setting::Record, std::to_string(f.record));
  writeSetting(store, Setting::Toolbar, boolText(f.toolbar));
  writeSetting(store, Setting::Status, boolText(f.status));
  writeSetting(store, Setting::Auto, boolText(f.autoFormat));
  writeSetting(store, Setting::LineNumbers, boolText(f.lineNumbers));
  writeSetting(store, Setting::ToolbarText, boolText(f.toolbarText));
  writeSetting(store, Setting::WindowState, std::to_string(f.windowState));
  writeSetting(store, Setting::Left, singleText(f.left));
  writeSetting(store, Setting::Top, singleText(f.top));
  writeSetting(store, Setting::Width, singleText(f.width));
  writeSetting(store, Setting::Height, singleText(f.height));
  for (std::size_t n = 0; n < kQuickFolders.size(); ++n) writeSetting(store, kQuickFolders[n], f.quickFolders[n]);
}

NumberingSettings readNumberingSettings(const SettingsStore& store) {
  NumberingSettings n;
  n.character = readSetting(store, Setting::NumberingCharacter);
  n.increment = readSetting(store, Setting::NumberingIncrement);
  n.skipLines = readSetting(store, Setting::NumberingSkipLines);
  n.start = readSetting(store, Setting::NumberingStart);
  n.method = readShort(store, Setting::NumberingMethod);
  if (n.method < 0 || n.method > 2) n.method = std::stoi(settingDefault(Setting::NumberingMethod));
  n.updateReferences = readBool(store, Setting::NumberingUpdateReferences);
  return n;
}

void writeNumberingSettings(SettingsStore& store, const NumberingSettings& n) {
  writeSetting(store, Setting::NumberingCharacter, n.character);
  writeSetting(store, Setting::NumberingIncrement, n.increment);
  writeSetting(store, Setting::NumberingSkipLines, n.skipLines);
  writeSetting(store, Setting::NumberingStart, n.start);
  writeSetting(store, Setting::NumberingMethod, std::to_string(n.method));
  writeSetting(store, Setting::NumberingUpdateReferences, boolText(n.updateReferences));
}

int readSearchFlags(const SettingsStore& store) { return readShort(store, Setting::Search); }

void writeSearchFlags(SettingsStore& store, int flags) { writeSetting(store, Setting::Search, std::to_string(flags)); }

OperateSettings readOperateSettings(const SettingsStore& store) {
  return {readSetting(store, Setting::OperateAddress), readSetting(store, Setting::OperateOperators)};
}

void writeOperateSettings(SettingsStore& store, const OperateSettings& o) {
  writeSetting(store, Setting::OperateAddress, o.address);
  writeSetting(store, Setting::OperateOperators, o.op);
}

}  // namespace lathwick
