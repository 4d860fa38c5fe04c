// The editor binary from the command line, offscreen: it starts from a stored application folder
// and quits cleanly; with --macro SCRIPT FILE it opens FILE, runs the script's Sub Main over it
// and closes, a script error giving exit status 1 with the error on stderr and the file untouched.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "platform/settings_store.h"
#include "support/cli_runner.h"
#include "support/temp_dir.h"

using lathwick::test::shellQuote;
using lathwick::test::TempDir;

namespace {

// Runs the editor with `arguments` (already quoted); stderr goes to `err` when given.
int runEditor(const TempDir& config, const std::string& arguments, const std::string& err = "/dev/null") {
  // The recovery session goes under the test's own folder, not the user's.
  const std::string cmd = "XDG_CONFIG_HOME=" + shellQuote(config.str()) + " XDG_STATE_HOME=" + shellQuote(config.str()) +
                          " QT_QPA_PLATFORM=offscreen timeout 60 " + shellQuote(LATHWICK_EDITOR_PATH) + " " +
                          arguments + " >/dev/null 2>" + shellQuote(err);
  const int status = std::system(cmd.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(EditorStart, StartsFromStoredAppFolderAndQuitsCleanly) {
  TempDir config, app;
  app.write("Lathwick.dat", std::string(12532, ' '));
  lathwick::SettingsStore(config.file("Lathwick/Lathwick.ini")).save("Startup", "app_path", app.str());
  EXPECT_EQ(runEditor(config, "--quit-after-start"), 0);
  // The folder in use is stored back at every start (the executable's own folder wins once the
  // build places a data file beside it).
  const std::string stored = lathwick::SettingsStore(config.file("Lathwick/Lathwick.ini")).get("Startup", "app_path");
  EXPECT_FALSE(stored.empty());
  EXPECT_EQ(stored.back(), '/');
}

TEST(EditorMacroOption, RunsMainOverTheOpenFileAndCloses) {
  TempDir config, files;
  const std::string program = files.write("p.nc", "N10 G00 X1\r\nN20 M30\r\n");
  const std::string script = files.write(
      "m.vbs", "Sub Main()\r\n  SelStart = 12\r\n  If LineNumber <> 1 Then Err.Raise 5\r\n  SelLength = 3\r\n"
               "  SelText = \"N25\"\r\n  Save\r\nEnd Sub\r\n");
  EXPECT_EQ(runEditor(config, "--macro " + shellQuote(script) + " " + shellQuote(program), files.file("err")), 0)
      << files.read("err");
  EXPECT_EQ(files.read("p.nc"), "N10 G00 X1\r\nN25 M30\r\n");
}

TEST(EditorMacroOption, ScriptErrorIsExitOneAndTheFileStaysWhole) {
  TempDir config, files;
  const std::string program = files.write("p.nc", "G00 X1\r\n");
  const std::string script = files.write("bad.vbs", "Sub Main()\r\n  Text = \"\"\r\n  x = 1 / 0\r\nEnd Sub\r\n");
  EXPECT_EQ(runEditor(config, "--macro " + shellQuote(script) + " " + shellQuote(program), files.file("err")), 1);
  EXPECT_NE(files.read("err").find("Division by zero"), std::string::npos) << files.read("err");
  EXPECT_EQ(files.read("p.nc"), "G00 X1\r\n");
}

}  // namespace
