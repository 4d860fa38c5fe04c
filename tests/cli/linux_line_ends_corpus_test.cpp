// Programs with Linux line ends (LF, no CR) against their CR LF twins, over the real corpus: every
// pass gives the same lines for both, the plain-text passes write LF back, the rich-text passes
// write the twin's bytes. A program that is not Linux text is its own twin.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "document/line_convention.h"
#include "support/cli_runner.h"

using lathwick::LineEnds;
using lathwick::test::CliResult;
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

struct Pass {
  std::vector<std::string> args;
  bool plainOut;  // written back with the IN's line ends
};

const std::vector<Pass>& passes() {
  static const std::vector<Pass> list = {
      {{"colorize", "--view", "modes"}, false},
      {{"colorize", "--view", "codes"}, false},
      {{"replace", "--find", "X", "--replace", "X ", "--exclude-comments"}, false},
      {{"highlight", "--find", "G0", "--whole-word"}, false},
      {{"operate", "--address", "XYZ", "--operator", "*", "--value", "2", "--format", "##0.0###"}, false},
      {{"renumber", "--start", "10", "--increment", "5", "--char", "N", "--skip", "%", "--method", "2"}, true},
      {{"add-spaces"}, true},
      {{"remove-spaces"}, true},
  };
  return list;
}

// The lines of a text whose lines end in `lineEnd` (a missing break at the end is no line more).
std::vector<std::string> linesOf(const std::string& text, const std::string& lineEnd) {
  std::vector<std::string> lines;
  std::size_t from = 0;
  while (from < text.size()) {
    const std::size_t at = text.find(lineEnd, from);
    if (at == std::string::npos) {
      lines.push_back(text.substr(from));
      break;
    }
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

CliResult run(const Pass& pass, const std::string& in, const std::string& out) {
  std::filesystem::remove(out);
  std::vector<std::string> args = pass.args;
  args.push_back(in);
  args.push_back(out);
  return runCli(args);
}

}  // namespace

TEST(LinuxLineEndsCorpus, EveryPassGivesTheTwinsLinesAndPlainOutputsKeepLf) {
  const std::string corpus = lathwick::test::corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "shared corpus not present";
  TempDir dir;
  int linuxPrograms = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    if (!entry.is_regular_file() || entry.path().filename() == "SOURCES.md") continue;
    const std::string in = entry.path().string();
    const std::string bytes = readBytes(in);
    const bool linux = lathwick::lineEndsOf(bytes) == LineEnds::Lf;
    if (linux) ++linuxPrograms;
    const std::string twin = dir.write("twin.nc", linux ? lathwick::linuxToCrLf(bytes) : bytes);
    for (const Pass& pass : passes()) {
      SCOPED_TRACE(entry.path().filename().string() + ": " + pass.args[0]);
      const CliResult mine = run(pass, in, dir.file("mine.out"));
      const CliResult theirs = run(pass, twin, dir.file("twin.out"));
      ASSERT_EQ(mine.exitCode, theirs.exitCode) << mine.err;
      EXPECT_EQ(mine.out, theirs.out);  // the count line
      if (theirs.exitCode != 0) {
        EXPECT_FALSE(linux) << "a Linux program is refused: " << mine.err;
        continue;
      }
      const std::string got = dir.read("mine.out");
      const std::string want = dir.read("twin.out");
      if (!pass.plainOut || !linux) {
        EXPECT_EQ(firstDifference(linesOf(got, "\r\n"), linesOf(want, "\r\n")), "");
        EXPECT_TRUE(got == want) << "the outputs differ in their line ends";
        continue;
      }
      EXPECT_EQ(got.find('\r'), std::string::npos) << "a plain output of a Linux program has a CR";
      EXPECT_EQ(firstDifference(linesOf(got, "\n"), linesOf(want, "\r\n")), "");
      EXPECT_TRUE(got == lathwick::withLineEnds(want, LineEnds::Lf)) << "a byte other than a line end differs";
    }
  }
  EXPECT_GT(linuxPrograms, 0);
}

TEST(LinuxLineEndsCorpus, MixedLineEndsAreStillForTheJunkFilter) {
  TempDir dir;
  const std::string in = dir.write("mixed.nc", "G0 X1\r\nG1 Y2\nG1 Y3\n");
  const CliResult r = runCli({"colorize", "--view", "modes", in, dir.file("out.rtf")});
  EXPECT_EQ(r.exitCode, 0);  // the colorizer's own check lets a file with a CR pass
  const CliResult operate = runCli({"operate", "--address", "X", "--operator", "*", "--value", "2", "--format",
                                    "0.0", dir.write("bare.nc", "G0 X1\rG1 X2\n"), dir.file("out.rtf")});
  EXPECT_EQ(operate.exitCode, 1);  // lone CRs and a bare LF: not Linux text, refused as before
  // The junk filter's output ends its lines with CR LF whatever its IN had.
  ASSERT_EQ(runCli({"junk-filter", dir.write("lf.nc", "G0 X1\nG1 Y2\n"), dir.file("clean.nc")}).exitCode, 0);
  EXPECT_EQ(dir.read("clean.nc"), "G0 X1\r\nG1 Y2\r\n");
}
