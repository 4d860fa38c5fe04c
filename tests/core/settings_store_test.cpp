// The settings store: stored order, case-blind names, escaping, atomic rewrites, delete-all.
#include <gtest/gtest.h>

#include <filesystem>
#include <set>

#include "platform/bytes.h"
#include "platform/settings_store.h"
#include "platform/settings_table.h"
#include "support/temp_dir.h"

using lathwick::SettingsStore;
using lathwick::test::TempDir;

TEST(SettingsStore, KeysComeBackInFirstStoredOrderAndValuesWholeAcrossReloads) {
  TempDir dir;
  const std::string path = dir.file("cfg/Lathwick.ini");  // folder created on first save
  {
    SettingsStore s(path);
    s.save("cboFind", "cboFind3", "c");
    s.save("cboFind", "cboFind1", "a");
    s.save("cboFind", "cboFind2", "b");
    s.save("cboFind", "cboFind3", "C");  // updating keeps the position
    s.save("Startup", "LastPath", "C:\\Jobs\\a=b; [x]\r\nline two\\n");  // special characters
  }
  SettingsStore s(path);
  EXPECT_EQ(s.get("Startup", "LastPath"), "C:\\Jobs\\a=b; [x]\r\nline two\\n");
  const lathwick::SettingPairs expected{{"cboFind3", "C"}, {"cboFind1", "a"}, {"cboFind2", "b"}};
  EXPECT_EQ(s.all("cboFind"), expected);
  EXPECT_EQ(s.all("CBOFIND"), expected);
  EXPECT_EQ(s.get("cbofind", "CBOFIND1"), "a");
  EXPECT_EQ(s.get("cboFind", "missing", "dflt"), "dflt");
}

TEST(SettingsStore, WritesLeaveNoTemporaryFilesAndDeleteAllRemovesTheFile) {
  TempDir dir;
  SettingsStore s(dir.file("s.ini"));
  for (int i = 0; i < 20; ++i) s.save("A", "k" + std::to_string(i), "v");
  int files = 0;
  for (const auto& e : std::filesystem::directory_iterator(dir.path())) (void)e, ++files;
  EXPECT_EQ(files, 1);
  s.deleteAll();
  EXPECT_FALSE(std::filesystem::exists(dir.file("s.ini")));
  EXPECT_TRUE(s.all("A").empty());
}

TEST(SettingsStore, DefaultPathFollowsXdgConfigHome) {
  const char* old = std::getenv("XDG_CONFIG_HOME");
  const std::string saved = old ? old : "";
  setenv("XDG_CONFIG_HOME", "/tmp/xdg-here", 1);
  EXPECT_EQ(SettingsStore::defaultPath(), "/tmp/xdg-here/Lathwick/Lathwick.ini");
  if (old) setenv("XDG_CONFIG_HOME", saved.c_str(), 1);
  else unsetenv("XDG_CONFIG_HOME");
}

TEST(SettingsTable, FreshStoreGivesTheDocumentedDefaults) {
  TempDir dir;
  const SettingsStore s(dir.file("s.ini"));
  const auto f = lathwick::readFrameSettings(s, 19200, 14400, "/opt/lathwick");
  EXPECT_TRUE(f.toolbar);
  EXPECT_TRUE(f.status);
  EXPECT_FALSE(f.autoFormat);
  EXPECT_EQ(f.windowState, 0);
  EXPECT_EQ(f.left, 50);
  EXPECT_EQ(f.top, 50);
  EXPECT_EQ(f.width, 19150);
  EXPECT_EQ(f.height, 14350);
  EXPECT_EQ(f.quickFolders[3], "Folder4");
  EXPECT_EQ(f.lastPath, "/opt/lathwick");
  const auto n = lathwick::readNumberingSettings(s);
  EXPECT_EQ(n.character + n.increment + n.skipLines + n.start, "N1%100");
  EXPECT_EQ(n.method, 2);
}

TEST(SettingsTable, FrameSettingsRoundTripAsWordsAndNumbers) {
  TempDir dir;
  SettingsStore s(dir.file("s.ini"));
  lathwick::FrameSettings f = lathwick::readFrameSettings(s, 1000, 1000, "/x");
  f.toolbar = false;
  f.autoFormat = true;
  f.windowState = 2;
  f.left = 1234.5;
  lathwick::writeFrameSettings(s, f);
  EXPECT_EQ(s.get("Startup", "Toolbar"), "False");
  EXPECT_EQ(s.get("Startup", "Auto"), "True");
  const auto back = lathwick::readFrameSettings(SettingsStore(dir.file("s.ini")), 1000, 1000, "/x");
  EXPECT_FALSE(back.toolbar);
  EXPECT_TRUE(back.autoFormat);
  EXPECT_EQ(back.windowState, 2);
  EXPECT_EQ(back.left, 1234.5);
}

TEST(SettingsTable, EverySettingHasAKeyOfItsOwn) {
  // Two names stored under one key would overwrite each other.
  std::set<std::string> keys;
  for (const lathwick::SettingRow& row : lathwick::kSettingsTable)
    EXPECT_TRUE(keys.insert(lathwick::asciiLower(std::string(row.section) + "/" + row.key)).second)
        << row.section << " " << row.key;
}

TEST(SettingsTable, ValuesThatDoNotReadTakeTheirDefaults) {
  TempDir dir;
  SettingsStore s(dir.file("s.ini"));
  s.save("Startup", "Toolbar", "perhaps");
  s.save("Startup", "top", "high");
  s.save("Startup", "search", "all");
  s.save("Numbering", "Method", "7");
  const auto f = lathwick::readFrameSettings(s, 1000, 1000, "/x");
  EXPECT_TRUE(f.toolbar);
  EXPECT_EQ(f.top, 50);
  EXPECT_EQ(lathwick::readSearchFlags(s), 0);
  EXPECT_EQ(lathwick::readNumberingSettings(s).method, 2);
  s.save("Numbering", "Method", "0");
  EXPECT_EQ(lathwick::readNumberingSettings(s).method, 0);
}
