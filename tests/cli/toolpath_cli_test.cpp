// lathwick-cli toolpath and bounds: the exact output, the warnings on stderr, the refusals, and
// golden outputs for a few programs of the shared corpus.
#include <gtest/gtest.h>

#include <filesystem>

#include "support/cli_runner.h"

using lathwick::test::CliResult;
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

const std::string kProgram =
    "%\r\nO1 (DEMO)\r\nG21 G90 G0 X10 Y0 Z5\r\nG1 Z-1 F200 G41 D1\r\nG3 X0 Y10 R-10\r\n"
    "/G0 X99\r\nG91 G0 Z6\r\nG20 G90 G99 G81 X1 Y1 Z-0.1 R0.1 F10\r\nG80 M30\r\n%\r\n";

TEST(ToolpathCli, WritesOneLinePerMoveAndWarningsOnStderr) {
  TempDir dir;
  EXPECT_EQ(runCli({"toolpath", dir.write("p.nc", kProgram)}),
            (CliResult{0,
                       "3 rapid 10.0000 0.0000 5.0000\n"
                       "4 feed 10.0000 0.0000 -1.0000\n"
                       "5 arc-ccw 0.0000 10.0000 -1.0000 10.0000 10.0000 -1.0000\n"
                       "7 rapid 0.0000 10.0000 5.0000\n"
                       "8 rapid 1.0000 1.0000 0.1969\n"
                       "8 rapid 1.0000 1.0000 0.1000\n"
                       "8 feed 1.0000 1.0000 -0.1000\n"
                       "8 rapid 1.0000 1.0000 0.1000\n",
                       "4: unsupported G41\n"}));
}

// The clockwise half circle from X10 to X-10 about the origin passes Y-10; the origin, where
// the machine starts, counts among all moves.
TEST(ToolpathCli, BoundsGivesOneNameValueLineEach) {
  TempDir dir;
  EXPECT_EQ(runCli({"bounds", dir.write("p.nc", "G21 G0 X10 Y0 Z5\nG1 Z-1 F100\nG2 X-10 Y0 I-10 J0\nG0 Z5\n")}),
            (CliResult{0,
                       "units mm\nmoves 4\n"
                       "feed-x-min -10.0000\nfeed-x-max 10.0000\nfeed-y-min -10.0000\nfeed-y-max 0.0000\n"
                       "feed-z-min -1.0000\nfeed-z-max 5.0000\n"
                       "all-x-min -10.0000\nall-x-max 10.0000\nall-y-min -10.0000\nall-y-max 0.0000\n"
                       "all-z-min -1.0000\nall-z-max 5.0000\n"
                       "feed-length 37.4159\nrapid-length 17.1803\ntime-minutes 0.3742\n",
                       ""}));
}

TEST(ToolpathCli, MissingFileAndMissingArgument) {
  EXPECT_EQ(runCli({"toolpath", "/nonexistent/p.nc"}), (CliResult{1, "", "/nonexistent/p.nc: File not found\n"}));
  EXPECT_EQ(runCli({"bounds"}).exitCode, 2);
  EXPECT_EQ(runCli({"toolpath", "a", "b"}).exitCode, 2);
}

TEST(ToolpathCli, CorpusProgramsMatchTheirGoldenOutput) {
  const std::string corpus = lathwick::test::corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "shared corpus not present";
  const std::filesystem::path golden = std::filesystem::path(LATHWICK_TEST_DATA_DIR) / "toolpath";
  int checked = 0;
  for (const auto& entry : std::filesystem::directory_iterator(golden)) {
    if (entry.path().extension() != ".toolpath") continue;
    const std::string name = entry.path().stem().string();
    SCOPED_TRACE(name);
    const std::string in = (std::filesystem::path(corpus) / name).string();
    EXPECT_EQ(runCli({"toolpath", in}), (CliResult{0, readBytes(entry.path()), readBytes(golden / (name + ".warnings"))}));
    EXPECT_EQ(runCli({"bounds", in}).out, readBytes(golden / (name + ".bounds")));
    ++checked;
  }
  EXPECT_GE(checked, 5);
}

}  // namespace
