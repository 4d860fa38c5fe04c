#include "workspace/menu_tables.h"

#include <array>

#include "platform/bytes.h"

namespace lathwick {
namespace {

constexpr MenuEntry top(const char* name, const char* caption, bool visible = true) {
  return {0, name, -1, caption, "", visible, ""};
}
constexpr MenuEntry item(const char* name, const char* caption, const char* shortcut = "") {
  return {1, name, -1, caption, shortcut, true, ""};
}
constexpr MenuEntry sub(const char* name, const char* caption, const char* shortcut = "") {
  return {2, name, -1, caption, shortcut, true, ""};
}
constexpr MenuEntry numbered(int level, const char* name, int index, const char* caption,
                             const char* shortcut = "", bool visible = true) {
  return {level, name, index, caption, shortcut, visible, ""};
}
constexpr MenuEntry keyed(const char* name, const char* caption, const char* keyText,
                         const char* shortcut = "") {
  return {1, name, -1, caption, shortcut, true, keyText};
}
constexpr MenuEntry bar(const char* name, int level = 1) { return {level, name, -1, "-", "", true, ""}; }

// The recent-file entries start hidden; index 0 is their separator.
#define RECENT_FILES                                                                   \
  numbered(1, "mnuRecentFile", 0, "-", "", false),                                     \
      numbered(1, "mnuRecentFile", 1, "RecentFile1", "", false),                       \
      numbered(1, "mnuRecentFile", 2, "RecentFile2", "", false),                       \
      numbered(1, "mnuRecentFile", 3, "RecentFile3", "", false),                       \
      numbered(1, "mnuRecentFile", 4, "RecentFile4", "", false),                       \
      numbered(1, "mnuRecentFile", 5, "RecentFile5", "", false),                       \
      numbered(1, "mnuRecentFile", 6, "RecentFile6", "", false),                       \
      numbered(1, "mnuRecentFile", 7, "RecentFile7", "", false),                       \
      numbered(1, "mnuRecentFile", 8, "RecentFile8", "", false)

const auto kFrameMenu = std::to_array<MenuEntry>({
    top("mnuFile", "&File"),
    item("mnuNew", "&New"),
    item("mnuOpen", "&Open"),
    bar("bar5"),
    RECENT_FILES,
    bar("mnuSeparator"),
    item("mnuExit", "E&xit"),
    top("mnuSettings", "&Settings"),
    item("mnuEditSchemes", "&Edit Schemes"),
    bar("bar6"),
    item("mnuToolbar", "&Toolbar"),
    item("mnuToolbarText", "Toolbar Te&xt"),
    item("mnuStatus", "&Status Bar"),
    item("mnuLineNumbers", "&Line Numbers"),
    item("mnuAuto", "&Auto Format"),
    bar("bar1"),
    item("mnuSendto", "Edit &Send-To List"),
    top("mnuHelp", "&Help"),
    item("mnuContents", "&Contents", "F1"),
    item("mnuAbout", "&About"),
    item("mnuReadMe", "&Read Me"),
});

const auto kDocumentMenu = std::to_array<MenuEntry>({
    top("mnuFile", "&File"),
    item("mnuNew", "&New"),
    item("mnuOpen", "&Open"),
    item("mnuClose", "&Close"),
    item("mnuSave", "&Save"),
    item("mnuSaveAs", "Save &As"),
    sub("mnuSaveAsTXT", "Save &As *.*"),
    sub("mnuSaveRTF", "Save As &RTF"),
    bar("bar"),
    item("mnuPrint", "&Print"),
    sub("mnuPrintPlain", "Print Plain Text", "Ctrl+P"),
    sub("mnuPrintAsRtf", "Print &Rich Text", "Ctrl+R"),
    bar("bar10"),
    item("mnuSend", "Send &To"),
    numbered(2, "mnuShell", 0, "Empty"),
    RECENT_FILES,
    bar("bar9"),
    item("mnuExit", "E&xit"),

    top("mnuEdit", "&Edit"),
    keyed("mnuUndo", "&Undo ", "Ctrl+Z"),
    bar("bar4"),
    keyed("mnuCut", "Cu&t ", "Ctrl+X"),
    item("mnuCutLine", "Cut &Line", "F5"),
    item("mnuCutToEnd", "Cut To &End", "Shift+F5"),
    keyed("mnuCopy", "&Copy ", "Ctrl+C"),
    keyed("mnuPaste", "&Paste ", "Ctrl+V"),
    item("mnuPasteLine", "Paste L&ine", "F9"),
    item("mnuAppend", "A&ppend Clipboard", "Ctrl+D"),
    item("mnuCleaeClip", "&Empty Clipboard", "Ctrl+E"),
    item("mnuSelectAll", "Select &All", "Ctrl+A"),
    item("mnuGetLast", "&Get Last Selection", "Ctrl+S"),
    bar("bar5"),
    item("mnuFind", "&Find", "F3"),
    item("mnuReplace", "&Replace", "F4"),
    item("mnuSetReplace", "&Set Search/Replace", "Ctrl+F"),
    bar("bar8"),
    item("mnuUcase", "&Upper Case"),
    item("mnuLcase", "&Lower Case"),
    item("mnuTitlecase", "&Title Case"),

    top("mnuView", "&View"),
    numbered(1, "mnuModal", 0, "View &Modes", "F6"),
    numbered(1, "mnuModal", 1, "View &Codes", "F7"),
    numbered(1, "mnuModal", 2, "&Reload", "F8"),
    bar("bar7"),
    item("mnuGraphics", "&Graphics"),
    sub("mnuGraphicsSetup", "S&etup"),
    sub("mnuShow", "&Show", "F11"),

    top("mnuColorSchemes", "S&cheme"),
    numbered(1, "mnuScheme", 1, "Scheme"),

    top("mnuOptions", "&Options"),
    item("mnuResequence", "Re&number"),
    item("mnuAddSpaces", "Add &Spaces"),
    item("mnuRemove", "&Remove Spaces"),
    item("mnuOperate", "&Operate"),
    item("mnuJunkFilter", "&Junk Filter"),
    item("mnuCompareMotion", "Compare &Motion With..."),
    bar("bar3"),
    item("mnueasytext", "&Easy-Text"),

    top("mnuSettings", "&Settings"),
    item("mnuEditSchemes", "&Edit Schemes"),
    bar("bar6"),
    item("mnuToolbar", "&Toolbar"),
    item("mnuToolbarText", "Toolbar Te&xt"),
    item("mnuStatus", "&Status Bar"),
    item("mnuLineNumbers", "&Line Numbers"),
    item("mnuAuto", "&Auto Format"),
    bar("bar1"),
    item("mnuSendto", "Edit &Send-To List"),

    top("mnuWindow", "&Window"),
    item("mnuCascade", "&Cascade"),
    item("mnuTileVert", "Tile &Vertically        { II }"),
    item("mnuTilrHoriz", "Tile &Horizontally   { = }"),

    top("mnuMacro", "&Macro"),
    numbered(1, "mnuExecuteMacro", 0, "Execute &File"),
    numbered(1, "mnuExecuteMacro", 1, "&Execute", "Ctrl+L"),
    item("mnuReset", "&Reset Code"),
    item("mnuRecordKeys", "Record &Keys"),

    top("mnuHelp", "&Help"),
    keyed("mnuContents", "&Contents", "F1", "F1"),
    item("mnuAbout", "&About"),
    item("mnuRead", "&Read Me"),

    top("mnuProcedures", "Procedures", false),
    numbered(1, "mnuProcc", 1, "List"),
});

#undef RECENT_FILES

// Key "", tooltip "", command "": a separator.
constexpr ToolbarButton kSeparator{"", "", "", -1, false};

const auto kToolbar = std::to_array<ToolbarButton>({
    {"New", "New document", "mnuNew", -1, false},
    {"Open", "Open an existing file", "mnuOpen", -1, false},
    {"Save", "Save document", "mnuSave", -1, true},
    kSeparator,
    {"Print", "Print active document", "PrintFile", -1, true},
    kSeparator,
    {"Find", "Search document for text", "mnuSetReplace", -1, true},
    kSeparator,
    {"Cut", "Cut selected text", "mnuCut", -1, true},
    {"Copy", "Copy selected text", "mnuCopy", -1, true},
    {"Paste", "Insert clipboard contents", "mnuPaste", -1, true},
    {"Delete", "Delete text", "Delete", -1, true},
    {"Undo", "Undo last operation", "mnuUndo", -1, true},
    kSeparator,
    {"Codes", "Format document by specific codes", "mnuModal", 1, true},
    {"Modes", "Format document cutting modes", "mnuModal", 0, true},
    kSeparator,
    {"Expand", "Insert spaces", "mnuAddSpaces", -1, true},
    {"Renumber", "Resequence line numbers ", "mnuResequence", -1, true},
    kSeparator,
    {"Comm", "Send file to communications program", "SendTo", -1, true},
    {"Help", "Open help contents", "mnuContents", -1, false},
});

}  // namespace

std::span<const MenuEntry> frameMenuTable() { return kFrameMenu; }
std::span<const MenuEntry> documentMenuTable() { return kDocumentMenu; }
std::span<const ToolbarButton> toolbarTable() { return kToolbar; }

bool hasChildren(std::span<const MenuEntry> table, std::size_t position) {
  return position + 1 < table.size() && table[position + 1].level == table[position].level + 1;
}

std::string loadedCaption(const MenuEntry& entry) {
  if (entry.keyText[0] == '\0') return entry.caption;
  return trimRightBlanks(entry.caption) + "\t" + entry.keyText;
}

}  // namespace lathwick
