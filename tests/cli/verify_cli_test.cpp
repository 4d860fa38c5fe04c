// lathwick-cli verify: the same motion written differently, a pair that parts at one arc, a
// program that ends first, a missing file; and over the shared corpus, renumbering that keeps
// references leaves every program's motion as it was.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/cli_runner.h"

using lathwick::test::CliResult;
using lathwick::test::corpusDir;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {
const char* const kPart =
    "%\r\nO1000 (PLATE)\r\nN10 G21 G90 G17\r\nN20 G0 X0 Y0 Z5.\r\nN30 G1 Z-1. F100.\r\n"
    "N40 G1 X20.\r\nN50 G2 X30. Y10. I0 J10.\r\nN60 G3 X40. Y20. R10.\r\nN70 G1 Y30.\r\nN80 M30\r\n%\r\n";
}  // namespace

TEST(VerifyCli, NumbersSpacesAndCommentsDoNotCountButOneArcDoes) {
  TempDir dir;
  const auto a = dir.write("a.nc", kPart);
  // No numbers, no spaces, a comment more, LF line ends, a difference below the tolerance.
  const auto same = dir.write("same.nc",
                              "%\nO1000\nG21G90G17\nG0X0Y0Z5.(CLEAR)\nG1Z-1.F100.\nX20.\nG2X30.Y10.I0J10.00004\n"
                              "G3X40.Y20.R10.\nG1Y30.\nM30\n%\n");
  EXPECT_EQ(runCli({"verify", a, same}), (CliResult{0, "", ""}));

  // The first arc turns the other way: both lines where they part, with their texts.
  std::string other = kPart;
  other.replace(other.find("N50 G2"), 6, "N50 G3");
  const auto b = dir.write("b.nc", other);
  EXPECT_EQ(runCli({"verify", a, b}),
            (CliResult{1, a + ":7: N50 G2 X30. Y10. I0 J10.\n" + b + ":7: N50 G3 X30. Y10. I0 J10.\n", ""}));

  // A centre moved by more than the tolerance is a difference too; the lines are each program's own.
  const auto c = dir.write("c.nc", "G21 G90 G17\nG0 X0 Y0 Z5.\nG1 Z-1. F100.\nX20.\nG2 X30. Y10. I0 J10.001\n");
  EXPECT_EQ(runCli({"verify", a, c}),
            (CliResult{1, a + ":7: N50 G2 X30. Y10. I0 J10.\n" + c + ":5: G2 X30. Y10. I0 J10.001\n", ""}));
}

TEST(VerifyCli, AProgramThatEndsFirstAndAMissingFile) {
  TempDir dir;
  const auto a = dir.write("a.nc", "G0 X1\nG1 X2 F10\nG1 X3\n");
  const auto b = dir.write("b.nc", "G0 X1\nG1 X2 F10\n");
  EXPECT_EQ(runCli({"verify", a, b}), (CliResult{1, a + ":3: G1 X3\n" + b + ": ends after 2 moves\n", ""}));

  const CliResult r = runCli({"verify", a, dir.file("none.nc")});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_EQ(r.out, "");
  EXPECT_NE(r.err.find(dir.file("none.nc") + ": File not found"), std::string::npos);
  EXPECT_EQ(runCli({"verify", a}).exitCode, 2);
}

TEST(VerifyCli, RenumberKeepingReferencesLeavesTheMotionOfEveryCorpusProgram) {
  const std::string corpus = corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "the shared corpus is absent";
  TempDir dir;
  int programs = 0, latheCycles = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    const std::string in = entry.path().string(), name = entry.path().filename().string();
    if (name == "SOURCES.md") continue;
    const std::string out = dir.file(name);
    const CliResult renumbered = runCli({"renumber", "--start", "100", "--increment", "10", "--char", "N", "--skip",
                                         "%", "--method", "2", "--keep-references", in, out});
    ASSERT_EQ(renumbered.exitCode, 0) << name << ": " << renumbered.err;
    const CliResult verified = runCli({"verify", in, out});
    EXPECT_EQ(verified.exitCode, 0) << name << ":\n" << verified.out << verified.err;
    ++programs;
    if (name.find("g70") != std::string::npos || name.find("g71") != std::string::npos) ++latheCycles;
  }
  EXPECT_GE(programs, 50);
  EXPECT_GE(latheCycles, 2);
}
