// The editor binary starts offscreen from a stored application folder and exits cleanly.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include "platform/settings_store.h"
#include "support/cli_runner.h"
#include "support/temp_dir.h"

using lathwick::test::TempDir;

TEST(EditorStart, StartsFromStoredAppFolderAndQuitsCleanly) {
  TempDir config, app;
  app.write("Lathwick.dat", std::string(12532, ' '));
  lathwick::SettingsStore(config.file("Lathwick/Lathwick.ini")).save("Startup", "app_path", app.str());
  // The recovery session goes under the test's own folder, not the user's.
  const std::string cmd = "XDG_CONFIG_HOME=" + lathwick::test::shellQuote(config.str()) +
                          " XDG_STATE_HOME=" + lathwick::test::shellQuote(config.str()) +
                          " QT_QPA_PLATFORM=offscreen timeout 60 " +
                          lathwick::test::shellQuote(LATHWICK_EDITOR_PATH) + " --quit-after-start >/dev/null 2>&1";
  const int status = std::system(cmd.c_str());
  ASSERT_TRUE(WIFEXITED(status));
  EXPECT_EQ(WEXITSTATUS(status), 0);
  // The folder in use is stored back at every start (the executable's own folder wins once the
  // build places a data file beside it).
  const std::string stored = lathwick::SettingsStore(config.file("Lathwick/Lathwick.ini")).get("Startup", "app_path");
  EXPECT_FALSE(stored.empty());
  EXPECT_EQ(stored.back(), '/');
}
