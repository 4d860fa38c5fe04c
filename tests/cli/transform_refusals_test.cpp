// Refusals and usage errors of the transformation subcommands: the system's own messages on
// stderr with exit 1, a message naming the option with exit 2, and OUT never written.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/cli_runner.h"

using lathwick::test::CliResult;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {
const std::string kJunk =
    "This file format is not correct for this operation. Please use the junk filter under Options and try again.";

void expectRefused(const CliResult& r, const std::string& message, const std::string& out) {
  EXPECT_EQ(r.exitCode, 1) << r.err;
  EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
  EXPECT_FALSE(std::filesystem::exists(out));
}

void expectUsage(const CliResult& r, const std::string& option, const std::string& out) {
  EXPECT_EQ(r.exitCode, 2) << r.err;
  EXPECT_NE(r.err.find(option), std::string::npos) << r.err;
  EXPECT_FALSE(std::filesystem::exists(out));
}
}  // namespace

TEST(TransformCliRefusals, BareLineFeedsRefuseSearchHighlightAndOperateOnly) {
  TempDir dir;
  // A lone CR and a bare LF: not Linux text (that has no CR at all), so the checks judge it.
  const auto in = dir.write("serial.nc", "G01 X1\rG00 X2\n");
  const auto out = dir.file("out");
  expectRefused(runCli({"replace", "--find", "X", "--replace", "Y", in, out}), kJunk, out);
  expectRefused(runCli({"highlight", "--find", "X", in, out}), kJunk, out);
  expectRefused(runCli({"operate", "--address", "X", "--operator", "*", "--value", "2", "--format", "0", in, out}),
                kJunk, out);
  // The plain passes take the bare LF as a character of its line and go on.
  EXPECT_EQ(runCli({"remove-spaces", in, out}).exitCode, 0);
  EXPECT_EQ(dir.read("out"), "G01X1\r\nG00X2\n\r\n");
}

TEST(TransformCliRefusals, LinuxLineEndsAreLinesForEveryPass) {
  TempDir dir;
  const auto in = dir.write("lf.nc", "G01 X1\nG00 X2\n");
  const auto out = dir.file("out");
  const CliResult r = runCli({"operate", "--address", "X", "--operator", "*", "--value", "2", "--format", "0", in, out});
  EXPECT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "2 Operations made.\n");
  EXPECT_EQ(runCli({"remove-spaces", in, out}).exitCode, 0);
  EXPECT_EQ(dir.read("out"), "G01X1\nG00X2\n");
}

TEST(TransformCliRefusals, OperateValidationRefusesAndBadOptionsAreUsageErrors) {
  TempDir dir;
  const auto in = dir.write("in.nc", "X1\r\n");
  const auto out = dir.file("out");
  const auto operate = [&](const std::string& a, const std::string& op, const std::string& v, const std::string& f) {
    return runCli({"operate", "--address", a, "--operator", op, "--value", v, "--format", f, in, out});
  };
  expectRefused(operate("X", "/", "0", "0.0"), "Division by zero not allowed", out);
  expectRefused(operate("", "*", "", ""), "Value is required.", out);
  expectUsage(operate("X", "%", "2", "0"), "--operator", out);
  expectUsage(operate("X1", "*", "2", "0"), "--address", out);
  expectUsage(operate("X", "*", "2", "0,000.0"), "--format", out);
  expectUsage(operate("X", "*", "two", "0"), "--value", out);
}

TEST(TransformCliRefusals, RenumberNeedsASequenceTextAndGoodNumbers) {
  TempDir dir;
  const auto in = dir.write("in.nc", "G0\r\n");
  const auto out = dir.file("out");
  const auto renumber = [&](const std::string& start, const std::string& seq, const std::string& method) {
    return runCli({"renumber", "--start", start, "--increment", "1", "--char", seq, "--skip", "%", "--method",
                   method, in, out});
  };
  expectRefused(renumber("10", " ", "2"), "Sequence character must be specified.", out);
  expectUsage(renumber("ten", "N", "2"), "--start", out);
  expectUsage(renumber("10", "N", "3"), "--method", out);
  // Every renumber option has the dialog's default now; a --char without its value is still wrong.
  expectUsage(runCli({"renumber", in, out, "--char"}), "--char", out);
  expectUsage(runCli({"replace", "--find", "X", in, out}), "--replace", out);
  expectUsage(runCli({"replace", "--find", "X", "--replace", "Y", "--lines", "5-2", in, out}), "--lines", out);
  expectUsage(runCli({"junk-filter", in}), "IN and OUT", out);
}

TEST(TransformCliRefusals, MissingInputAndBadSchemeAreRefused) {
  TempDir dir;
  const auto out = dir.file("out");
  for (const std::vector<std::string>& args :
       {std::vector<std::string>{"junk-filter"}, {"add-spaces"}, {"remove-spaces"}, {"highlight", "--find", "X"}}) {
    std::vector<std::string> full = args;
    full.push_back(dir.file("missing.nc"));
    full.push_back(out);
    const auto r = runCli(full);
    EXPECT_EQ(r.exitCode, 1) << args[0] << r.err;
    EXPECT_FALSE(r.err.empty());
    EXPECT_FALSE(std::filesystem::exists(out));
  }
  const auto in = dir.write("in.nc", "X1\r\n");
  const auto r = runCli({"highlight", "--find", "X", "--data", dir.write("bad.dat", "short"), in, out});
  expectRefused(r, "There is a problem with data file", out);
}
