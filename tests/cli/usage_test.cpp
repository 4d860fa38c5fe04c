// The batch tool's front door: usage text, --help and the exit statuses of usage errors.
#include <gtest/gtest.h>

#include "support/cli_runner.h"

using lathwick::test::runCli;

TEST(CliUsage, HelpPrintsEverySubcommandAndExitsZero) {
  const auto r = runCli({"--help"});
  EXPECT_EQ(r.exitCode, 0);
  for (const char* sub : {"colorize", "replace", "highlight", "operate", "renumber", "add-spaces",
                          "remove-spaces", "junk-filter", "scheme", "rtf-text", "run"})
    EXPECT_NE(r.out.find(sub), std::string::npos) << sub;
}

TEST(CliUsage, NoArgumentsOrUnknownSubcommandIsAUsageError) {
  auto r = runCli({});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_NE(r.err.find("Usage:"), std::string::npos);
  r = runCli({"frobnicate"});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_NE(r.err.find("frobnicate"), std::string::npos);
}
