// lathwick --macro SCRIPT FILE: the real editor opens FILE, runs the script's Sub Main over it
// and closes; a script error gives exit status 1 with the error on stderr and the file untouched.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "support/cli_runner.h"
#include "support/temp_dir.h"

using lathwick::test::TempDir;

namespace {

int runEditor(const TempDir& config, const std::string& script, const std::string& file, const std::string& err) {
  // The recovery session goes under the test's own folder, not the user's.
  const std::string cmd = "XDG_CONFIG_HOME=" + lathwick::test::shellQuote(config.str()) +
                          " XDG_STATE_HOME=" + lathwick::test::shellQuote(config.str()) +
                          " QT_QPA_PLATFORM=offscreen timeout 60 " + lathwick::test::shellQuote(LATHWICK_EDITOR_PATH) +
                          " --macro " + lathwick::test::shellQuote(script) + " " + lathwick::test::shellQuote(file) +
                          " >/dev/null 2>" + lathwick::test::shellQuote(err);
  const int status = std::system(cmd.c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

TEST(EditorMacroOption, RunsMainOverTheOpenFileAndCloses) {
  TempDir config, files;
  const std::string program = files.write("p.nc", "N10 G00 X1\r\nN20 M30\r\n");
  const std::string script = files.write(
      "m.vbs", "Sub Main()\r\n  SelStart = 12\r\n  If LineNumber <> 1 Then Err.Raise 5\r\n  SelLength = 3\r\n"
               "  SelText = \"N25\"\r\n  Save\r\nEnd Sub\r\n");
  EXPECT_EQ(runEditor(config, script, program, files.file("err")), 0) << files.read("err");
  EXPECT_EQ(files.read("p.nc"), "N10 G00 X1\r\nN25 M30\r\n");
}

TEST(EditorMacroOption, ScriptErrorIsExitOneAndTheFileStaysWhole) {
  TempDir config, files;
  const std::string program = files.write("p.nc", "G00 X1\r\n");
  const std::string script = files.write("bad.vbs", "Sub Main()\r\n  Text = \"\"\r\n  x = 1 / 0\r\nEnd Sub\r\n");
  EXPECT_EQ(runEditor(config, script, program, files.file("err")), 1);
  EXPECT_NE(files.read("err").find("Division by zero"), std::string::npos) << files.read("err");
  EXPECT_EQ(files.read("p.nc"), "G00 X1\r\n");
}

}  // namespace
