// The menu tables are data the windows trust: every entry must be reachable by a unique name,
// numbered families must be complete, and the toolbar must name real menu commands.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "workspace/menu_tables.h"

using namespace lathwick;

namespace {
void expectWellFormed(std::span<const MenuEntry> table) {
  std::set<std::pair<std::string, int>> seen;
  int previousLevel = 0;
  for (std::size_t i = 0; i < table.size(); ++i) {
    const MenuEntry& e = table[i];
    EXPECT_TRUE(seen.insert({e.name, e.index}).second) << "duplicate " << e.name << "(" << e.index << ")";
    EXPECT_LE(e.level, previousLevel + 1) << e.name << " skips a level";
    if (e.isSeparator()) {
      EXPECT_FALSE(hasChildren(table, i)) << e.name;
    }
    previousLevel = e.level;
  }
  for (int i = 0; i < kRecentFileEntries; ++i) EXPECT_TRUE(seen.count({"mnuRecentFile", i})) << i;
}
}  // namespace

TEST(MenuTables, BothMenusAreWellFormed) {
  expectWellFormed(frameMenuTable());
  expectWellFormed(documentMenuTable());
  EXPECT_EQ(frameMenuTable().front().level, 0);
  EXPECT_EQ(documentMenuTable().front().level, 0);
}

TEST(MenuTables, ToolbarCommandsAreMenuEntriesOfTheDocumentWindow) {
  std::set<std::pair<std::string, int>> entries;
  for (const MenuEntry& e : documentMenuTable()) entries.insert({e.name, e.index});
  int buttons = 0, separators = 0;
  for (const ToolbarButton& b : toolbarTable()) {
    if (b.isSeparator()) {
      ++separators;
      continue;
    }
    ++buttons;
    const std::string command = b.command;
    // Three buttons run window methods that have no menu entry of their own.
    if (command == "Delete" || command == "PrintFile" || command == "SendTo") continue;
    EXPECT_TRUE(entries.count({command, b.commandIndex})) << b.key << " -> " << command;
  }
  EXPECT_GT(buttons, 0);
  EXPECT_GT(separators, 0);
}
