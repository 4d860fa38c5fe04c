#pragma once
// The menu trees of the frame window and of a document window, and the main toolbar, as data.
// The windows build their menus from these tables; every entry reaches its command through the
// command dispatcher under the entry's menu name (and index, for the numbered entries).
#include <span>
#include <string>

namespace lathwick {

struct MenuEntry {
  int level;             // 0 a top-level menu; 1 an entry of it; 2 an entry of a submenu
  const char* name;      // menu name ("mnuFile"); separators keep their own names ("bar5")
  int index;             // -1 for a single entry; the number of a numbered entry otherwise
  const char* caption;   // with its "&" key; "-" is a separator
  const char* shortcut;  // "" for none; "F1", "Ctrl+P", "Shift+F5" ...
  bool visible;          // false: hidden until filled (recent files, script procedures)
  const char* keyText;   // display-only key text added after a tab when a window loads ("" none)

  bool isSeparator() const { return caption[0] == '-' && caption[1] == '\0'; }
};

// Menu of the frame window while no document is open.
std::span<const MenuEntry> frameMenuTable();
// Menu of a document window.
std::span<const MenuEntry> documentMenuTable();

// True when the entry at `position` has entries of the next level directly below it.
bool hasChildren(std::span<const MenuEntry> table, std::size_t position);

// The caption a document window shows once loaded: the key text after a tab, trailing blanks
// dropped ("Cu&t " with "Ctrl+X" becomes "Cu&t\tCtrl+X"); other captions unchanged.
std::string loadedCaption(const MenuEntry& entry);

// Number of recent-file entries, including the separator at index 0.
inline constexpr int kRecentFileEntries = 9;

struct ToolbarButton {
  const char* key;          // "" for a separator
  const char* tooltip;
  const char* command;      // the menu name whose command the button runs
  int commandIndex;         // -1 unless the command is a numbered entry
  bool needsDocument;       // disabled while no document is open

  bool isSeparator() const { return key[0] == '\0'; }
};

std::span<const ToolbarButton> toolbarTable();

inline constexpr int kQuickFolders = 4;

}  // namespace lathwick
