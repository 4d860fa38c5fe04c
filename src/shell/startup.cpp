#include "shell/startup.h"

#include <exception>

#include "platform/file_system.h"
#include "platform/install_layout.h"
#include "platform/vb_convert.h"
#include "platform/app_folder.h"
#include "platform/settings_table.h"

namespace lathwick {

std::string makeVersionText(const std::string& title, int major, int minor) {
  return title + "  Version " + std::to_string(major) + "." + std::to_string(minor);
}

void setWorkFiles(AppValues& v, const std::string& appFolder) {
  v.Temp1File = appFolder + "TEMP1.TXT";
  v.Temp2File = appFolder + "TEMP2.TXT";
  v.Temp3File = appFolder + "TEMP3.TXT";
  v.GrafxFile = appFolder + "Grafx.TXT";
  v.PrintRtfFile = appFolder + "PrintRTF.RTF";
  v.UndoFile = appFolder + "UNDO.RTF";
  v.HelpFile = appFolder + "help/index.html";
}

std::string StartupHost::installedDataFolder() { return lathwick::installedDataFolder(executableFolder()); }

std::string StartupHost::userAppFolder() { return lathwick::userAppFolder(); }

std::string withInstalledDataFolder(StartupHost& host, const std::string& appFolder) {
  const std::string installed = WithBackslash(host.installedDataFolder());
  if (installed.empty() || FileExists(appFolder + kDataFileName) || !FileExists(installed + kDataFileName))
    return appFolder;
  return installed;
}

std::string settleWritableAppFolder(StartupHost& host, const std::string& appFolder) {
  const std::string installed = WithBackslash(host.installedDataFolder());
  const std::string user = WithBackslash(host.userAppFolder());
  if (user.empty()) return appFolder;
  if (appFolder == user) {
    // Files a newer installation added reach the user's folder; the user's own stay.
    if (!installed.empty() && FileExists(installed + kDataFileName)) fillAppFolder(installed, user);
    return user;
  }
  const bool readOnly = appFolder == installed || !isWritableFolder(appFolder);
  if (!readOnly || !FileExists(appFolder + kDataFileName)) return appFolder;
  fillAppFolder(appFolder, user);
  return user;
}

StartupResult runStartup(StartupHost& host) {
  StartupResult result;
  AppValues& v = result.values;
  std::string lastError;
  // Each step runs even when an earlier one failed; only the last error is remembered.
  const auto step = [&](auto&& body) {
    try {
      body();
    } catch (const std::exception& e) {
      lastError = e.what();
    } catch (...) {
      lastError = "Unknown error";
    }
  };

  std::string ownFolder;
  step([&] { host.makeCurrentDirectory(host.executableFolder()); });
  step([&] {
    std::string line = host.commandLine();
    std::string noQuotes;
    for (char c : line)
      if (c != '"') noQuotes += c;
    v.StartupFile = noQuotes;
  });
  step([&] { ownFolder = WithBackslash(host.executableFolder()); });
  step([&] { v.AppFolder = WithBackslash(readSetting(host.settings(), Setting::AppPath)); });
  step([&] {
    if (v.AppFolder.empty()) v.AppFolder = ownFolder;
  });
  step([&] {
    if (v.AppFolder != ownFolder && FileExists(ownFolder + kDataFileName)) v.AppFolder = ownFolder;
  });
  step([&] { v.AppFolder = withInstalledDataFolder(host, v.AppFolder); });
  step([&] { v.AppFolder = settleWritableAppFolder(host, v.AppFolder); });
  step([&] { v.DataFilePath = v.AppFolder + kDataFileName; });
  step([&] { writeSetting(host.settings(), Setting::AppPath, v.AppFolder); });
  step([&] { host.showSplash(); });
  if (!FileExists(v.DataFilePath)) {
    step([&] { host.showMissingDataFile(kMissingDataFileMessage); });
    step([&] { host.settings().deleteAll(); });
    result.outcome = StartupOutcome::EndedMissingDataFile;
    return result;
  }
  step([&] { setWorkFiles(v, v.AppFolder); });
  step([&] { v.CurrentScheme = toInt16(readSetting(host.settings(), Setting::Record)); });
  step([&] { v.VersionText = makeVersionText(kAppTitle, LATHWICK_VERSION_MAJOR, LATHWICK_VERSION_MINOR); });
  step([&] { host.loadMainWindow(v); });
  step([&] { host.loadSchemeEditor(v); });
  if (!lastError.empty()) {
    result.errorMessage = "Error in Sub Main\r\n" + lastError;
    step([&] { host.showStartupError(result.errorMessage, kStartupErrorCaption); });
  }
  return result;
}

}  // namespace lathwick
