// lathwick-cli run: the console host end to end.
#include <gtest/gtest.h>

#include "support/cli_runner.h"
#include "support/temp_dir.h"

using lathwick::test::CliResult;
using lathwick::test::runCli;
using lathwick::test::TempDir;

TEST(CliRun, PrintsMsgBoxPromptsAndSeesItsArguments) {
  TempDir dir;
  const auto script = dir.write("a.vbs",
                                "args = Arguments\r\n"
                                "MsgBox \"count \" & (UBound(args) + 1)\r\n"
                                "WriteLine Join(args, \"|\")\r\n"
                                "If MsgBox(\"Continue?\", vbYesNo) = vbYes Then WriteLine \"yes\"\r\n");
  EXPECT_EQ(runCli({"run", script, "one", "two words"}), (CliResult{0, "count 2\none|two words\nContinue?\nyes\n", ""}));
}

TEST(CliRun, InputBoxReadsLinesAndEndOfInputIsCancel) {
  TempDir dir;
  const auto script = dir.write("in.vbs",
                                "a = InputBox(\"Name?\")\nb = InputBox(\"Again?\")\n"
                                "WriteLine \"[\" & a & \"][\" & b & \"]\"\n");
  EXPECT_EQ(runCli({"run", script}, "Ada\r\n"), (CliResult{0, "Name?\nAgain?\n[Ada][]\n", ""}));
}

TEST(CliRun, RuntimeErrorPrintsTheRecordAndExitsOne) {
  TempDir dir;
  const auto script = dir.write("bad.vbs", "WriteLine \"before\"\n  x = 1 / 0\nWriteLine \"after\"\n");
  EXPECT_EQ(runCli({"run", script}),
            (CliResult{1, "before\n", script + ":2:3: VBScript runtime error 11: Division by zero\n      x = 1 / 0\n"}));
}

TEST(CliRun, CompileErrorRunsNothing) {
  TempDir dir;
  const auto script = dir.write("syntax.vbs", "WriteLine \"never\"\nIf x Then\n");
  const auto r = runCli({"run", script});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_NE(r.err.find("VBScript compilation error 1014: Expected 'End'"), std::string::npos) << r.err;
}

TEST(CliRun, MissingScriptIsRefusedAndNoScriptIsAUsageError) {
  TempDir dir;
  EXPECT_EQ(runCli({"run", dir.file("nope.vbs")}).exitCode, 1);
  EXPECT_EQ(runCli({"run"}).exitCode, 2);
}
