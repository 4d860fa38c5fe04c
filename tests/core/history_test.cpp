// Most-recently-used lists: combo histories (exact) and the recent-file list (case-blind).
#include <gtest/gtest.h>

#include "workspace/history.h"
#include "support/temp_dir.h"

using lathwick::SettingsStore;
using lathwick::test::TempDir;

namespace {
std::vector<std::string> slots(const SettingsStore& s, const std::string& section, const std::string& prefix, int n) {
  std::vector<std::string> out;
  for (int i = 1; i <= n; ++i) out.push_back(s.get(section, prefix + std::to_string(i)));
  return out;
}
using V = std::vector<std::string>;
}  // namespace

TEST(History, NewTextGoesOnTopAndTheOldestDropsOff) {
  TempDir dir;
  SettingsStore s(dir.file("s.ini"));
  for (int i = 1; i <= 10; ++i) lathwick::HistoryUpdate(s, "cboFind", "t" + std::to_string(i), 10);
  EXPECT_EQ(slots(s, "cboFind", "cboFind", 10), (V{"t10", "t9", "t8", "t7", "t6", "t5", "t4", "t3", "t2", "t1"}));
  lathwick::HistoryUpdate(s, "cboFind", "t11", 10);
  EXPECT_EQ(slots(s, "cboFind", "cboFind", 10), (V{"t11", "t10", "t9", "t8", "t7", "t6", "t5", "t4", "t3", "t2"}));
  EXPECT_FALSE(s.has("cboFind", "cboFind11"));
}

TEST(History, OlderCopyMovesToTopWithoutDuplicateAndCaseMatters) {
  TempDir dir;
  SettingsStore s(dir.file("s.ini"));
  for (const char* t : {"a", "b", "c", "d"}) lathwick::HistoryUpdate(s, "cboFind", t, 10);
  lathwick::HistoryUpdate(s, "cboFind", "b", 10);
  EXPECT_EQ(slots(s, "cboFind", "cboFind", 5), (V{"b", "d", "c", "a", ""}));
  lathwick::HistoryUpdate(s, "cboFind", "B", 10);  // a different entry for a combo box
  EXPECT_EQ(slots(s, "cboFind", "cboFind", 5), (V{"B", "b", "d", "c", "a"}));
  lathwick::HistoryUpdate(s, "cboFind", "", 10);
  lathwick::HistoryUpdate(s, "cboFind", "B", 10);  // already first: nothing moves
  EXPECT_EQ(slots(s, "cboFind", "cboFind", 5), (V{"B", "b", "d", "c", "a"}));
  EXPECT_EQ(lathwick::HistoryLoad(s, "cboFind").front(), "B");
}

TEST(RecentFiles, ReopeningTheThirdMovesItFirstAndLeavesTheRest) {
  TempDir dir;
  SettingsStore s(dir.file("s.ini"));
  std::vector<std::string> names;
  for (int i = 8; i >= 1; --i) {
    names.push_back("/jobs/p" + std::to_string(i) + ".nc");
    lathwick::RecentListUpdate(s, names.back(), true);
  }
  // RecentFile1..8 now hold p1..p8.
  ASSERT_EQ(s.get("RecentFiles", "RecentFile3"), "/jobs/p3.nc");
  lathwick::RecentListUpdate(s, "/JOBS/P3.NC", true);  // same file, other case
  EXPECT_EQ(slots(s, "RecentFiles", "RecentFile", 8),
            (V{"/JOBS/P3.NC", "/jobs/p1.nc", "/jobs/p2.nc", "/jobs/p4.nc", "/jobs/p5.nc", "/jobs/p6.nc",
               "/jobs/p7.nc", "/jobs/p8.nc"}));
  EXPECT_FALSE(s.has("RecentFiles", "RecentFile9"));
}

TEST(RecentFiles, MenuCaptionsNumberShortenedPathsWithOneOrTwoBlanksAndMissingFilesChangeNothing) {
  TempDir dir;
  SettingsStore s(dir.file("s.ini"));
  EXPECT_FALSE(lathwick::RecentListUpdate(s, "Untitled 1", false));
  EXPECT_TRUE(s.all("RecentFiles").empty());
  EXPECT_TRUE(lathwick::RecentMenuEntries(s, false).empty());
  lathwick::RecentListUpdate(s, "C:\\CNC\\Programs\\Customer\\Job42\\part.nc", true);
  lathwick::RecentListUpdate(s, "/a.nc", true);
  const auto main = lathwick::RecentMenuEntries(s, false);
  ASSERT_EQ(main.size(), 2u);
  EXPECT_EQ(main[0].caption, "&1 /a.nc");
  EXPECT_EQ(main[1].caption, "&2 C:\\ ...\\Job42\\part.nc");
  EXPECT_EQ(lathwick::RecentMenuEntries(s, true)[0].caption, "&1  /a.nc");
}
