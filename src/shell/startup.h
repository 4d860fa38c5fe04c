#pragma once
// The start-up sequence: settles the application folder, names the work files, reads the
// current scheme and builds the version text. The sequence is core logic; everything it shows
// or loads goes through StartupHost, so the editor and the tests drive the same steps.
#include <cstdint>
#include <string>

#include "platform/app_names.h"
#include "platform/settings_store.h"

namespace lathwick {

inline constexpr const char* kMissingDataFileMessage = "Unable to find dat file. Please re-install.";
inline constexpr const char* kStartupErrorCaption = "Load Error";

// Application-wide values fixed once at start-up.
struct AppValues {
  std::string AppFolder;  // always ends in a separator
  std::string DataFilePath;
  std::string StartupFile;
  std::string Temp1File, Temp2File, Temp3File, GrafxFile, PrintRtfFile, UndoFile;
  std::string HelpFile;  // the HTML help the help commands open
  std::int16_t CurrentScheme = 0;
  std::string VersionText;
};

// Title, two blanks, "Version", one blank, major "." minor, numbers without padding.
std::string makeVersionText(const std::string& title, int major, int minor);

// Names every work file and the help file inside the given application folder.
void setWorkFiles(AppValues& values, const std::string& appFolder);

class StartupHost {
 public:
  virtual ~StartupHost() = default;
  virtual std::string executableFolder() = 0;  // without or with a trailing separator
  virtual std::string commandLine() = 0;       // the arguments as one string
  virtual void makeCurrentDirectory(const std::string& folder) = 0;
  virtual SettingsStore& settings() = 0;
  virtual void showSplash() = 0;
  // The data file is missing: show the message (OK only, the application title as caption).
  virtual void showMissingDataFile(const std::string& message) = 0;
  virtual void loadMainWindow(const AppValues& values) = 0;
  virtual void loadSchemeEditor(const AppValues& values) = 0;  // load and unload, not shown
  virtual void showStartupError(const std::string& message, const std::string& caption) = 0;
  // The bundled data folder of an installed program (default: share/lathwick beside the
  // executable's folder). It is used when neither the executable's folder nor the stored folder
  // holds the scheme data file, and the program never writes in it.
  virtual std::string installedDataFolder();
  // The folder each user gets when the application folder cannot be written (default: under
  // the XDG data home); empty when there is none.
  virtual std::string userAppFolder();
};

enum class StartupOutcome { Running, EndedMissingDataFile };

struct StartupResult {
  StartupOutcome outcome = StartupOutcome::Running;
  AppValues values;
  std::string errorMessage;  // the one error report shown at the end, if any
};

// The installed data folder when the folder the stored setting and the executable's folder
// settled on lacks the scheme data file and the installed one has it; otherwise that folder.
std::string withInstalledDataFolder(StartupHost& host, const std::string& appFolder);

// The folder the program works in: the per-user folder, filled from the application folder
// (fillAppFolder), when that is the installed data folder or cannot be written; the given
// folder otherwise. When the per-user folder is already the application folder, files a newer
// installation added are copied in. Throws when the per-user folder cannot be filled.
std::string settleWritableAppFolder(StartupHost& host, const std::string& appFolder);

// Runs every step in order. A failing step does not stop the sequence; the last error is
// reported once at the end through the host.
StartupResult runStartup(StartupHost& host);

}  // namespace lathwick
