// The start-up sequence: which folder becomes the application folder, what is stored, and how
// a missing data file or failing steps are reported.
#include <gtest/gtest.h>

#include <algorithm>

#include "startup_host.h"

namespace {
using lathwick::StartupOutcome;
using lathwick::test::TempDir;

struct Folders {
  TempDir home, exe, data;
  lathwick::test::FakeStartupHost host{home, exe.str()};
};
}  // namespace

TEST(Startup, DataFileBesideExecutableWithoutSettingIsUsedAndStored) {
  Folders f;
  f.exe.write("Lathwick.dat", "x");
  const auto r = lathwick::runStartup(f.host);
  EXPECT_EQ(r.outcome, StartupOutcome::Running);
  EXPECT_EQ(r.values.AppFolder, f.exe.folder());
  EXPECT_EQ(r.values.DataFilePath, f.exe.folder() + "Lathwick.dat");
  EXPECT_EQ(r.values.UndoFile, f.exe.folder() + "UNDO.RTF");
  EXPECT_EQ(r.values.Temp2File, f.exe.folder() + "TEMP2.TXT");
  EXPECT_EQ(f.host.store.get("Startup", "app_path"), f.exe.folder());
  EXPECT_EQ(r.values.CurrentScheme, 1);
  EXPECT_EQ(r.values.VersionText.rfind("Lathwick  Version ", 0), 0u);
  EXPECT_EQ(lathwick::makeVersionText("Korvale", 1, 54), "Korvale  Version 1.54");  // two blanks
  EXPECT_EQ(lathwick::makeVersionText("Lathwick", 2, 0), "Lathwick  Version 2.0");
  EXPECT_EQ(f.host.calls, (std::vector<std::string>{"chdir", "splash", "main", "setup"}));
  EXPECT_TRUE(r.errorMessage.empty());
}

TEST(Startup, StoredFolderIsKeptUntilTheExecutableFolderHoldsTheDataFileAndFoldersCompareCaseSensitively) {
  Folders f;
  f.data.write("Lathwick.dat", "x");
  f.host.store.save("Startup", "app_path", f.data.str());  // no trailing separator
  EXPECT_EQ(lathwick::runStartup(f.host).values.AppFolder, f.data.folder());
  EXPECT_EQ(f.host.store.get("Startup", "app_path"), f.data.folder());
  f.exe.write("Lathwick.dat", "x");
  EXPECT_EQ(lathwick::runStartup(f.host).values.AppFolder, f.exe.folder());
  // A stored folder that differs from the executable's only in case counts as another folder.
  std::string upper = f.exe.folder();
  for (char& c : upper) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  f.host.store.save("Startup", "app_path", upper);
  EXPECT_EQ(lathwick::runStartup(f.host).values.AppFolder, f.exe.folder());
}

TEST(Startup, MissingDataFileShowsMessageWipesSettingsAndEnds) {
  Folders f;
  f.host.store.save("Numbering", "Start", "500");
  const auto r = lathwick::runStartup(f.host);
  EXPECT_EQ(r.outcome, StartupOutcome::EndedMissingDataFile);
  EXPECT_EQ(f.host.calls, (std::vector<std::string>{"chdir", "splash",
                                                    "missing:Unable to find dat file. Please re-install."}));
  EXPECT_TRUE(f.host.store.all("Numbering").empty());
  EXPECT_TRUE(f.host.store.all("Startup").empty());
  EXPECT_FALSE(std::filesystem::exists(f.home.file("settings.ini")));
}

TEST(Startup, CommandLineLosesOnlyItsQuotesAndTheSchemeNumberIsReadLikeAnInteger) {
  Folders f;
  f.exe.write("Lathwick.dat", "x");
  f.host.line = "\"/jobs/my part.nc\" \"second.nc\"";
  f.host.store.save("Startup", "record", " 3 ");
  const auto r = lathwick::runStartup(f.host);
  EXPECT_EQ(r.values.StartupFile, "/jobs/my part.nc second.nc");
  EXPECT_EQ(r.values.CurrentScheme, 3);
  f.host.store.save("Startup", "record", "70000");
  EXPECT_NE(lathwick::runStartup(f.host).errorMessage.find("Overflow"), std::string::npos);
}

TEST(Startup, FailingStepsAreReportedOnceAtTheEndAndTheRestStillRuns) {
  Folders f;
  f.exe.write("Lathwick.dat", "x");
  f.host.store.save("Startup", "record", "many");  // not a number: type mismatch
  f.host.failMainWindow = true;
  const auto r = lathwick::runStartup(f.host);
  EXPECT_EQ(r.outcome, StartupOutcome::Running);
  EXPECT_EQ(f.host.calls.back(), "error:Load Error:Error in Sub Main\r\nObject required");
  EXPECT_EQ(f.host.calls[f.host.calls.size() - 2], "setup");  // later steps still ran
  EXPECT_EQ(std::count_if(f.host.calls.begin(), f.host.calls.end(),
                          [](const std::string& c) { return c.rfind("error:", 0) == 0; }),
            1);
}
