// Every transformation subcommand over every program of the shared corpus, and over bad input
// (binary bytes, an empty file, a 10 MB line): a clear outcome each time, never a crash.
#include <gtest/gtest.h>

#include <filesystem>
#include <random>

#include "document/line_convention.h"
#include "document/line_ending_checks.h"
#include "support/cli_runner.h"

using lathwick::test::CliResult;
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

struct Command {
  std::vector<std::string> args;
  bool rich;  // refused for files with bare line feeds, Linux text apart
};

const std::vector<Command>& commands() {
  static const std::vector<Command> list = {
      {{"replace", "--find", "X", "--replace", "X ", "--exclude-comments"}, true},
      {{"highlight", "--find", "G0", "--whole-word", "--match-case"}, true},
      {{"operate", "--address", "XYZ", "--operator", "*", "--value", "2", "--format", "##0.0###"}, true},
      {{"renumber", "--start", "10", "--increment", "5", "--char", "N", "--skip", "%", "--method", "2"}, false},
      {{"add-spaces"}, false},
      {{"remove-spaces"}, false},
      {{"junk-filter"}, false},
  };
  return list;
}

// Runs the command on `in`; checks the exit status, the refusal and that OUT exists exactly when
// the command succeeded.
void expectCleanRun(const Command& c, const std::string& in, const std::string& out, const std::string& what) {
  std::filesystem::remove(out);
  std::vector<std::string> args = c.args;
  args.push_back(in);
  args.push_back(out);
  const CliResult r = runCli(args);
  // A program with Linux line ends is worked on as its CR LF twin; other bare LFs are refused.
  const bool refused = c.rich && !lathwick::FormatCheck(in) && lathwick::lineEndsOfFile(in) != lathwick::LineEnds::Lf;
  if (refused) {
    EXPECT_EQ(r.exitCode, 1) << c.args[0] << " " << what;
    EXPECT_NE(r.err.find(lathwick::kJunkFilterMessage), std::string::npos) << c.args[0] << " " << what;
    EXPECT_FALSE(std::filesystem::exists(out));
  } else {
    EXPECT_EQ(r.exitCode, 0) << c.args[0] << " " << what << ": " << r.err;
    EXPECT_TRUE(std::filesystem::exists(out)) << c.args[0] << " " << what;
    if (c.rich) {
      EXPECT_NE(r.out.find(" made."), std::string::npos) << c.args[0] << " " << what;
    }
  }
}

}  // namespace

TEST(TransformCorpus, EverySubcommandOnEveryProgram) {
  const std::string corpus = lathwick::test::corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "shared corpus not present";
  TempDir dir;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    if (!entry.is_regular_file() || entry.path().filename() == "SOURCES.md") continue;
    ++files;
    const std::string in = entry.path().string();
    const std::string name = entry.path().filename().string();
    for (const Command& c : commands()) expectCleanRun(c, in, dir.file("out"), name);

    // Through the junk filter every program becomes acceptable to the rich-text passes.
    ASSERT_EQ(runCli({"junk-filter", in, dir.file("clean.nc")}).exitCode, 0);
    ASSERT_TRUE(lathwick::FormatCheck(dir.file("clean.nc")) || readBytes(dir.file("clean.nc")).empty());
    for (const Command& c : commands()) expectCleanRun(c, dir.file("clean.nc"), dir.file("out"), name + " filtered");

    // Adding spaces twice gives the same bytes as once.
    ASSERT_EQ(runCli({"add-spaces", dir.file("clean.nc"), dir.file("once.nc")}).exitCode, 0);
    ASSERT_EQ(runCli({"add-spaces", dir.file("once.nc"), dir.file("twice.nc")}).exitCode, 0);
    EXPECT_EQ(dir.read("once.nc"), dir.read("twice.nc")) << name;
  }
  EXPECT_GT(files, 0);
}

TEST(TransformCorpus, BadInputGetsAClearOutcome) {
  TempDir dir;
  std::mt19937 random(42);
  std::string binary(200000, '\0');
  for (char& c : binary) c = static_cast<char>(random());
  std::string longLine = "G01";
  for (int i = 0; longLine.size() < 10u * 1024 * 1024; ++i) longLine += " X" + std::to_string(i % 1000) + ".5(C)";
  const std::vector<std::pair<std::string, std::string>> inputs = {
      {"binary", binary},
      {"empty", ""},
      {"long line", longLine + "\r\n"},
      {"long line, no break", longLine},
      {"nul bytes", std::string("G01\0X1\r\n\0\0", 10)},
  };
  for (const auto& [what, bytes] : inputs) {
    const std::string in = dir.write("in.nc", bytes);
    for (const Command& c : commands()) expectCleanRun(c, in, dir.file("out"), what);
  }
}
