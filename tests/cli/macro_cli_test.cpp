// lathwick-cli macro: the bundled macros over every corpus program (after the junk filter, as a
// machinist would clean a file first), and scripts that fail: a clear message, exit 1, no OUT.
#include <gtest/gtest.h>

#include <filesystem>
#include <sstream>

#include "support/cli_runner.h"

using lathwick::test::CliResult;
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

const std::string kMain = std::string(LATHWICK_APP_DIR) + "/Script/main.vbs";

std::vector<std::string> linesOf(const std::string& text) {
  std::vector<std::string> lines;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) lines.push_back(line);
  return lines;
}

CliResult macro(const std::string& proc, const std::string& in, const std::string& out) {
  return runCli({"macro", kMain, "--call", proc, in, out});
}

TEST(MacroCli, BundledMacrosOnASmallProgram) {
  TempDir dir;
  const std::string in = dir.write("in.nc", "N10 G20 G00 X1 Y2 T1\r\nN20 G02 X2.5 I-0.5 F10 (X1 T9)\r\nN30 T2 M6\r\nM30\r\n");
  ASSERT_EQ(macro("V_StripNumbers", in, dir.file("s.nc")).exitCode, 0);
  EXPECT_EQ(dir.read("s.nc"), "G20 G00 X1 Y2 T1\r\nG02 X2.5 I-0.5 F10 (X1 T9)\r\nT2 M6\r\nM30\r\n");
  ASSERT_EQ(macro("V_InchToMm", in, dir.file("m.nc")).exitCode, 0);
  EXPECT_EQ(dir.read("m.nc"), "N10 G21 G00 X25.4 Y50.8 T1\r\nN20 G02 X63.5 I-12.7 F254.0 (X1 T9)\r\nN30 T2 M6\r\nM30\r\n");
  ASSERT_EQ(macro("V_MirrorX", in, dir.file("x.nc")).exitCode, 0);
  EXPECT_EQ(dir.read("x.nc"), "N10 G20 G00 X-1.0 Y2 T1\r\nN20 G03 X-2.5 I0.5 F10 (X1 T9)\r\nN30 T2 M6\r\nM30\r\n");
  ASSERT_EQ(macro("V_ListTools", in, dir.file("t.nc")).exitCode, 0);
  EXPECT_EQ(dir.read("t.nc"), "(TOOLS USED: T1 T2)\r\n" + readBytes(in));
}

TEST(MacroCli, BundledMacrosOverTheCorpus) {
  const std::string corpus = lathwick::test::corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "shared corpus not present";
  TempDir dir;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    if (!entry.is_regular_file() || entry.path().filename() == "SOURCES.md") continue;
    if (std::filesystem::file_size(entry.path()) > 160000) continue;  // keeps the run short: the macros are character loops
    ++files;
    const std::string name = entry.path().filename().string();
    ASSERT_EQ(runCli({"junk-filter", entry.path().string(), dir.file("clean.nc")}).exitCode, 0);
    const std::string clean = dir.read("clean.nc");
    const std::size_t lines = linesOf(clean).size();

    ASSERT_EQ(macro("V_StripNumbers", dir.file("clean.nc"), dir.file("s.nc")).exitCode, 0) << name;
    const std::vector<std::string> stripped = linesOf(dir.read("s.nc"));
    EXPECT_EQ(stripped.size(), lines) << name;
    for (const std::string& l : stripped)
      EXPECT_FALSE(l.size() > 1 && (l[0] == 'N' || l[0] == 'n') && std::isdigit(static_cast<unsigned char>(l[1])))
          << name << ": " << l;

    ASSERT_EQ(macro("V_ListTools", dir.file("clean.nc"), dir.file("t.nc")).exitCode, 0) << name;
    const std::string listed = dir.read("t.nc");
    EXPECT_EQ(listed.rfind("(TOOLS USED:", 0), 0u) << name;
    EXPECT_EQ(listed.substr(listed.find("\r\n") + 2), clean) << name;

    // Mirroring twice gives back every value (as numbers: "X1" comes back as "X1.0").
    ASSERT_EQ(macro("V_MirrorX", dir.file("clean.nc"), dir.file("x1.nc")).exitCode, 0) << name;
    ASSERT_EQ(macro("V_MirrorX", dir.file("x1.nc"), dir.file("x2.nc")).exitCode, 0) << name;
    ASSERT_EQ(macro("V_MirrorX", dir.file("x2.nc"), dir.file("x3.nc")).exitCode, 0) << name;
    EXPECT_EQ(dir.read("x3.nc"), dir.read("x1.nc")) << name;
    EXPECT_EQ(linesOf(dir.read("x1.nc")).size(), lines) << name;
  }
  EXPECT_GT(files, 0);
}

TEST(MacroCli, BadScriptsAreToldAndWriteNothing) {
  TempDir dir;
  const std::string in = dir.write("in.nc", "G00 X1\r\n");
  const std::vector<std::pair<std::string, std::string>> scripts = {
      {"Sub Main()\r\nIf If\r\nEnd Sub\r\n", "Expected expression"},
      {"Sub Main()\r\nx = 1 / 0\r\nEnd Sub\r\n", "Division by zero"},
  };
  for (const auto& [text, message] : scripts) {
    std::filesystem::remove(dir.file("out.nc"));
    const CliResult r = runCli({"macro", dir.write("bad.vbs", text), in, dir.file("out.nc")});
    EXPECT_EQ(r.exitCode, 1) << message;
    EXPECT_NE(r.err.find(message), std::string::npos) << r.err;
    EXPECT_FALSE(std::filesystem::exists(dir.file("out.nc")));
  }
  EXPECT_EQ(runCli({"macro", dir.write("ok.vbs", "Sub Main()\r\nEnd Sub\r\n"), in}).exitCode, 2);
  EXPECT_EQ(runCli({"macro", dir.write("op.vbs", "Sub Main()\r\nOperate \"X\", \"*\", \"2.5\", \"0.0\"\r\nEnd Sub\r\n"), in,
                    dir.file("out.nc")}),
            (CliResult{0, "Value must be a valid number.\n", ""}));
  EXPECT_EQ(dir.read("out.nc"), "G00 X1\r\n");
}

}  // namespace
