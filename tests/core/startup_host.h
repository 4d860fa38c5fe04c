#pragma once
// A start-up host over temporary folders that records what the start-up sequence asks of it.
#include <stdexcept>
#include <string>
#include <vector>

#include "shell/startup.h"
#include "support/temp_dir.h"

namespace lathwick::test {

class FakeStartupHost : public StartupHost {
 public:
  FakeStartupHost(const TempDir& home, std::string exe, std::string installed = "", std::string user = "")
      : store(home.file("settings.ini")), exeFolder(std::move(exe)), installed(std::move(installed)),
        user(std::move(user)) {}
  SettingsStore store;
  std::string exeFolder, installed, user, line;
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
  std::string installedDataFolder() override { return installed; }
  std::string userAppFolder() override { return user; }
};

}  // namespace lathwick::test
