// Every transformation subcommand over every program of the shared corpus, and over bad input
// (binary bytes, an empty file, a 10 MB line): a clear outcome each time, never a crash. A program
// with Linux line ends (LF, no CR) gives the lines of its CR LF twin; the plain-text passes write
// it back with LF, the rich-text passes write the twin's bytes.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <random>

#include "document/line_convention.h"
#include "document/line_ending_checks.h"
#include "support/cli_runner.h"

using lathwick::LineEnds;
using lathwick::test::CliResult;
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

struct Command {
  std::vector<std::string> args;
  bool rich;  // refused for files with bare line feeds, Linux text apart; written as rich text
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

CliResult run(const Command& c, const std::string& in, const std::string& out) {
  std::filesystem::remove(out);
  std::vector<std::string> args = c.args;
  args.push_back(in);
  args.push_back(out);
  return runCli(args);
}

// Runs the command on `in`; checks the exit status, the refusal and that OUT exists exactly when
// the command succeeded.
CliResult expectCleanRun(const Command& c, const std::string& in, const std::string& out, const std::string& what) {
  SCOPED_TRACE(c.args[0] + " " + what);
  const CliResult r = run(c, in, out);
  // A program with Linux line ends is worked on as its CR LF twin; other bare LFs are refused.
  const bool refused = c.rich && !lathwick::FormatCheck(in) && lathwick::lineEndsOfFile(in) != LineEnds::Lf;
  if (refused) {
    EXPECT_EQ(r.exitCode, 1);
    EXPECT_NE(r.err.find(lathwick::kJunkFilterMessage), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(out));
  } else {
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_TRUE(std::filesystem::exists(out));
    if (c.rich) {
      EXPECT_NE(r.out.find(" made."), std::string::npos);
    }
  }
  return r;
}

// The lines of a text whose lines end in `lineEnd` (a missing break at the end is no line more).
std::vector<std::string> linesOf(const std::string& text, const std::string& lineEnd) {
  std::vector<std::string> lines;
  for (std::size_t from = 0; from < text.size();) {
    const std::size_t at = std::min(text.find(lineEnd, from), text.size());
    lines.push_back(text.substr(from, at - from));
    from = at + lineEnd.size();
  }
  return lines;
}

// Where two outputs part, as "line N: ...", or "" when they are equal. A whole-file EXPECT_EQ
// would have the test framework diff megabytes of rich text line against line.
std::string firstDifference(const std::vector<std::string>& got, const std::vector<std::string>& want) {
  for (std::size_t i = 0; i < std::max(got.size(), want.size()); ++i) {
    const std::string a = i < got.size() ? got[i] : "<none>";
    const std::string b = i < want.size() ? want[i] : "<none>";
    if (a != b) return "line " + std::to_string(i + 1) + ": [" + a.substr(0, 200) + "] vs [" + b.substr(0, 200) + "]";
  }
  return "";
}

// A Linux program's output against its CR LF twin's: the same lines, LF kept by the plain passes.
void expectSameAsTwin(const Command& c, const CliResult& mine, const std::string& twin, TempDir& dir) {
  SCOPED_TRACE(c.args[0] + " against the CR LF twin");
  const CliResult theirs = run(c, twin, dir.file("twin.out"));
  ASSERT_EQ(mine.exitCode, theirs.exitCode) << mine.err;
  EXPECT_EQ(mine.out, theirs.out);  // the count line
  const std::string got = dir.read("out");
  const std::string want = dir.read("twin.out");
  if (c.rich) {
    EXPECT_EQ(firstDifference(linesOf(got, "\r\n"), linesOf(want, "\r\n")), "");
    EXPECT_TRUE(got == want) << "the outputs differ in their line ends";
    return;
  }
  EXPECT_EQ(got.find('\r'), std::string::npos) << "a plain output of a Linux program has a CR";
  EXPECT_EQ(firstDifference(linesOf(got, "\n"), linesOf(want, "\r\n")), "");
  EXPECT_TRUE(got == lathwick::withLineEnds(want, LineEnds::Lf)) << "a byte other than a line end differs";
}

}  // namespace

TEST(TransformCorpus, EverySubcommandOnEveryProgramAndLinuxProgramsAsTheirTwins) {
  const std::string corpus = lathwick::test::corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "shared corpus not present";
  TempDir dir;
  int files = 0, linuxPrograms = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    if (!entry.is_regular_file() || entry.path().filename() == "SOURCES.md") continue;
    ++files;
    const std::string in = entry.path().string();
    const std::string name = entry.path().filename().string();
    const std::string bytes = readBytes(in);
    const bool linux = lathwick::lineEndsOf(bytes) == LineEnds::Lf;
    linuxPrograms += linux;
    const std::string twin = linux ? dir.write("twin.nc", lathwick::linuxToCrLf(bytes)) : "";
    for (const Command& c : commands()) {
      const CliResult r = expectCleanRun(c, in, dir.file("out"), name);
      // The junk filter's output ends its lines with CR LF whatever its IN had.
      if (linux && c.args[0] != "junk-filter") expectSameAsTwin(c, r, twin, dir);
    }

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
  EXPECT_GT(linuxPrograms, 0);
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
  // Mixed line ends are not Linux text, but the colorizer's own check lets a file with a CR pass.
  const std::string mixed = dir.write("mixed.nc", "G0 X1\r\nG1 Y2\nG1 Y3\n");
  EXPECT_EQ(runCli({"colorize", "--view", "modes", mixed, dir.file("out.rtf")}).exitCode, 0);
}
