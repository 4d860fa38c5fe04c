#include "platform/settings_table.h"

#include "platform/bytes.h"
#include "platform/vb_convert.h"

namespace lathwick {

const std::array<SettingRow, 28> kSettingsTable = {{
    {"Startup", "app_path", "", "application folder"},
    {"Startup", "record", "1", "current scheme number"},
    {"Startup", "LastPath", nullptr, "folder shown first by the file dialogs (the executable's folder)"},
    {"Startup", "Toolbar", "True", "toolbar visible"},
    {"Startup", "Status", "True", "status bar visible"},
    {"Startup", "Auto", "False", "auto format on"},
    {"Startup", "LineNumbers", "True", "line-number margin of the documents shown"},
    {"Startup", "ToolbarText", "False", "toolbar buttons show their names under the icons"},
    {"Startup", "WindowState", "0", "main window state: 0 normal, 1 minimised, 2 maximised"},
    {"Startup", "left", "50", "main window left in twips"},
    {"Startup", "top", "50", "main window top in twips"},
    {"Startup", "width", nullptr, "main window width in twips (screen width - 50)"},
    {"Startup", "height", nullptr, "main window height in twips (screen height - 50)"},
    {"Startup", "QuickFolder1", "Folder1", "first folder of the Open button's list"},
    {"Startup", "QuickFolder2", "Folder2", "second folder of the Open button's list"},
    {"Startup", "QuickFolder3", "Folder3", "third folder of the Open button's list"},
    {"Startup", "QuickFolder4", "Folder4", "fourth folder of the Open button's list"},
    {"Startup", "PrintProgram", "Wordpad", "program used to print rich text"},
    {"Startup", "search", "0", "search option flags"},
    {"Numbering", "Character", "N", "renumber: sequence character"},
    {"Numbering", "Increment", "1", "renumber: increment"},
    {"Numbering", "SkipLines", "%", "renumber: skip characters"},
    {"Numbering", "Start", "100", "renumber: start number"},
    {"Numbering", "Method", "2", "renumber: method (2 = all non-comment lines)"},
    {"Numbering", "UpdateReferences", "False", "renumber: rewrite the words that name a renumbered block"},
    {"Operate", "Operators", "*", "operate: operator"},
    {"Operate", "Address", "XYZ", "operate: address letters"},
    {"RecentFiles", "RecentFile1", "", "most recent file (RecentFile1 to RecentFile8)"},
}};

std::string settingDefault(std::string_view section, std::string_view key) {
  for (const auto& row : kSettingsTable)
    if (equalsIgnoreCase(row.section, section) && equalsIgnoreCase(row.key, key))
      return row.defaultValue ? row.defaultValue : "";
  return {};
}

namespace {
template <typename T, typename Convert>
T readOr(const SettingsStore& store, const char* section, const char* key, T fallback, Convert convert) {
  if (!store.has(section, key)) return fallback;
  try {
    return convert(store.get(section, key));
  } catch (...) {
    return fallback;
  }
}

bool readBool(const SettingsStore& s, const char* key, bool fallback) {
  return readOr(s, kStartup, key, fallback, [](const std::string& t) { return toBool(t); });
}
double readNumber(const SettingsStore& s, const char* key, double fallback) {
  return readOr(s, kStartup, key, fallback, [](const std::string& t) { return toDouble(t); });
}
}  // namespace

FrameSettings readFrameSettings(const SettingsStore& store, double screenWidth, double screenHeight,
                                const std::string& exeFolder) {
  FrameSettings f;
  f.toolbar = readBool(store, "Toolbar", true);
  f.status = readBool(store, "Status", true);
  f.autoFormat = readBool(store, "Auto", false);
  f.lineNumbers = readBool(store, "LineNumbers", true);
  f.toolbarText = readBool(store, "ToolbarText", false);
  f.windowState = static_cast<int>(readNumber(store, "WindowState", 0));
  f.left = readNumber(store, "left", 50);
  f.top = readNumber(store, "top", 50);
  f.width = readNumber(store, "width", screenWidth - 50);
  f.height = readNumber(store, "height", screenHeight - 50);
  for (int n = 1; n <= 4; ++n) {
    const std::string key = "QuickFolder" + std::to_string(n);
    f.quickFolders[n - 1] = store.get(kStartup, key, "Folder" + std::to_string(n));
  }
  f.lastPath = store.get(kStartup, "LastPath", exeFolder);
  f.record = static_cast<int>(readOr(store, kStartup, "record", std::int16_t{1},
                                     [](const std::string& t) { return toInt16(t); }));
  return f;
}

void writeFrameSettings(SettingsStore& store, const FrameSettings& f) {
  store.save(kStartup, "record", std::to_string(f.record));
  store.save(kStartup, "Toolbar", boolText(f.toolbar));
  store.save(kStartup, "Status", boolText(f.status));
  store.save(kStartup, "Auto", boolText(f.autoFormat));
  store.save(kStartup, "LineNumbers", boolText(f.lineNumbers));
  store.save(kStartup, "ToolbarText", boolText(f.toolbarText));
  store.save(kStartup, "WindowState", std::to_string(f.windowState));
  store.save(kStartup, "left", singleText(f.left));
  store.save(kStartup, "top", singleText(f.top));
  store.save(kStartup, "width", singleText(f.width));
  store.save(kStartup, "height", singleText(f.height));
  for (int n = 1; n <= 4; ++n)
    store.save(kStartup, "QuickFolder" + std::to_string(n), f.quickFolders[n - 1]);
}

NumberingSettings readNumberingSettings(const SettingsStore& store) {
  NumberingSettings n;
  n.character = store.get(kNumbering, "Character", n.character);
  n.increment = store.get(kNumbering, "Increment", n.increment);
  n.skipLines = store.get(kNumbering, "SkipLines", n.skipLines);
  n.start = store.get(kNumbering, "Start", n.start);
  n.method = readOr(store, kNumbering, "Method", 2, [](const std::string& t) { return int(toInt16(t)); });
  n.updateReferences = readOr(store, kNumbering, "UpdateReferences", false, [](const std::string& t) { return toBool(t); });
  return n;
}

void writeNumberingSettings(SettingsStore& store, const NumberingSettings& n) {
  store.save(kNumbering, "Character", n.character);
  store.save(kNumbering, "Increment", n.increment);
  store.save(kNumbering, "SkipLines", n.skipLines);
  store.save(kNumbering, "Start", n.start);
  store.save(kNumbering, "Method", std::to_string(n.method));
  store.save(kNumbering, "UpdateReferences", n.updateReferences ? "True" : "False");
}

int readSearchFlags(const SettingsStore& store) {
  return readOr(store, kStartup, "search", 0, [](const std::string& t) { return int(toInt16(t)); });
}

void writeSearchFlags(SettingsStore& store, int flags) { store.save(kStartup, "search", std::to_string(flags)); }

OperateSettings readOperateSettings(const SettingsStore& store) {
  OperateSettings o;
  o.address = store.get(kOperate, "Address", o.address);
  o.op = store.get(kOperate, "Operators", o.op);
  return o;
}

void writeOperateSettings(SettingsStore& store, const OperateSettings& o) {
  store.save(kOperate, "Address", o.address);
  store.save(kOperate, "Operators", o.op);
}

}  // namespace lathwick
