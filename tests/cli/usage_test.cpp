// The batch tool's front door: usage text, --help and the exit statuses of usage errors.
#include <gtest/gtest.h>

#include "support/cli_runner.h"

using lathwick::test::runCli;

TEST(CliUsage, HelpPrintsEverySubcommandAndMisuseExitsTwo) {
  const auto r = runCli({"--help"});
  EXPECT_EQ(r.exitCode, 0);
  for (const char* sub : {"colorize", "replace", "highlight", "operate", "renumber", "add-spaces",
                          "remove-spaces", "junk-filter", "scheme", "rtf-text", "run"})
    EXPECT_NE(r.out.find(sub), std::string::npos) << sub;
  // No arguments or an unknown subcommand: a usage error.
  const auto none = runCli({});
  EXPECT_EQ(none.exitCode, 2);
  EXPECT_NE(none.err.find("Usage:"), std::string::npos);
  const auto unknown = runCli({"frobnicate"});
  EXPECT_EQ(unknown.exitCode, 2);
  EXPECT_NE(unknown.err.find("frobnicate"), std::string::npos);
}
