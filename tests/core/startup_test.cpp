// The start-up sequence: which folder becomes the application folder, what is stored, and how
// a missing data file or failing steps are reported.
#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

#include "shell/startup.h"
#include "support/temp_dir.h"

namespace {
using lathwick::AppValues;
using lathwick::SettingsStore;
using lathwick::StartupOutcome;
using lathwick::test::TempDir;

class FakeHost : public lathwick::StartupHost {
 public:
  explicit FakeHost(const TempDir& home) : store(home.file("settings.ini")) {}
  std::string exeFolder;
  std::string line;
  SettingsStore store;
  std::vector<std::string> calls;
  bool failMainWindow = false;

  std::string executableFolder() override { return exeFolder; }
  std::string commandLine() override { return line; }
  void makeCurrentDirectory(const std::string&) override { calls.push_back("chdir"); }
  SettingsStore& settings() override { return store; }
  void showSplash() override { calls.push_back("splash"); }
  void showMissingDataFile(const std::string& m) override { calls.push_back("missing:" + m); }
  void loadMainWindow(const AppValues&) override {
    calls.push_back("main");
    if (failMainWindow) throw std::runtime_error("Object required");
  }
  void loadSchemeEditor(const AppValues&) override { calls.push_back("setup"); }
  void showStartupError(const std::string& m, const std::string& c) override {
    calls.push_back("error:" + c + ":" + m);
  }
};

struct Folders {
  TempDir home, exe, data;
  FakeHost host{home};
  Folders() { host.exeFolder = exe.str(); }
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
  EXPECT_EQ(f.host.calls, (std::vector<std::string>{"chdir", "splash", "main", "setup"}));
  EXPECT_TRUE(r.errorMessage.empty());
}

TEST(Startup, StoredFolderWithoutSeparatorIsKeptWhenExecutableFolderLacksDataFile) {
  Folders f;
  f.data.write("Lathwick.dat", "x");
  f.host.store.save("Startup", "app_path", f.data.str());  // no trailing separator
  const auto r = lathwick::runStartup(f.host);
  EXPECT_EQ(r.values.AppFolder, f.data.folder());
  EXPECT_EQ(f.host.store.get("Startup", "app_path"), f.data.folder());
}

TEST(Startup, ExecutableFolderWinsWhenItHoldsTheDataFile) {
  Folders f;
  f.exe.write("Lathwick.dat", "x");
  f.data.write("Lathwick.dat", "x");
  f.host.store.save("Startup", "app_path", f.data.folder());
  EXPECT_EQ(lathwick::runStartup(f.host).values.AppFolder, f.exe.folder());
}

TEST(Startup, FolderComparisonIsCaseSensitive) {
  // The stored folder differs from the executable's only in case: they count as different, so
  // the data-file test decides; with the data file beside the executable that folder wins.
  Folders f;
  f.exe.write("Lathwick.dat", "x");
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

TEST(Startup, CommandLineLosesOnlyItsQuotes) {
  Folders f;
  f.exe.write("Lathwick.dat", "x");
  f.host.line = "\"/jobs/my part.nc\" \"second.nc\"";
  EXPECT_EQ(lathwick::runStartup(f.host).values.StartupFile, "/jobs/my part.nc second.nc");
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

TEST(Startup, SchemeNumberIsConvertedLikeAnInteger) {
  Folders f;
  f.exe.write("Lathwick.dat", "x");
  f.host.store.save("Startup", "record", " 3 ");
  EXPECT_EQ(lathwick::runStartup(f.host).values.CurrentScheme, 3);
  f.host.store.save("Startup", "record", "70000");
  const auto r = lathwick::runStartup(f.host);
  EXPECT_NE(r.errorMessage.find("Overflow"), std::string::npos);
}

TEST(Startup, VersionTextHasTwoBlanksBeforeVersion) {
  EXPECT_EQ(lathwick::makeVersionText("Korvale", 1, 54), "Korvale  Version 1.54");
  EXPECT_EQ(lathwick::makeVersionText("Lathwick", 2, 0), "Lathwick  Version 2.0");
}
