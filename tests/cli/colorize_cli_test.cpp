// lathwick-cli colorize: both views against golden files, options, refusals, the real corpus.
#include <gtest/gtest.h>

#include <filesystem>

#include "document/line_ending_checks.h"
#include "format/bundled_schemes.h"
#include "format/scheme_data_file.h"
#include "support/cli_runner.h"

using namespace lathwick;
using lathwick::test::corpusDir;
using lathwick::test::readBytes;
using lathwick::test::CliResult;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {

std::string testData(const std::string& name) { return std::string(LATHWICK_TEST_DATA_DIR) + "/format/" + name; }

const std::string kDataProblem =
    "There is a problem with data file in the installed directory.\n"
    "If the problem persists you will have to restore an older version. \n";

}  // namespace

// Code words right after one of their own kind (M3M8, T1T2, F100.F200.) are marked as well: the
// search goes on from the end of each mark.
TEST(CliColorize, BothViewsMatchTheGoldenFiles) {
  TempDir dir;
  const struct { std::vector<std::string> command; const char *in, *golden; } rows[] = {
      {{"colorize", "--view", "modes"}, "sample.nc", "sample.modes.rtf"},
      {{"colorize", "--view", "codes", "--scheme", "2"}, "sample.nc", "sample.codes.rtf"},
      {{"colorize", "--view", "codes"}, "markers.nc", "markers.codes.rtf"}};
  for (const auto& row : rows) {
    std::vector<std::string> args = row.command;
    args.insert(args.end(), {testData(row.in), dir.file("o.rtf")});
    const auto r = runCli(args);
    EXPECT_EQ(r.exitCode, 0) << r.err;
    EXPECT_EQ(r.out, "");
    EXPECT_EQ(readBytes(dir.file("o.rtf")), readBytes(testData(row.golden))) << row.golden;
  }
}

TEST(CliColorize, UsesAnyDataFileAndTheCommentOption) {
  TempDir dir;
  SchemeRecord mine = bundledSchemes()[3];
  mine.style(0, kCommentStyle).marker = "[";
  const std::string data = dir.file("mine.dat");
  writeSchemeRecord(data, 1, mine);
  const std::string in = dir.write("in.nc", "X1 [X2] (X3)\r\n");
  auto r = runCli({"colorize", "--view", "codes", "--data", data, in, dir.file("a.rtf")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const std::string comment = "\\f0\\fs20\\cf1\\b0\\i\\strike0\\ul0 ";  // Print's comment style
  EXPECT_NE(readBytes(dir.file("a.rtf")).find(comment + "[X2]"), std::string::npos);
  r = runCli({"colorize", "--view", "codes", "--data", data, "--comment", "(", in, dir.file("b.rtf")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const std::string b = readBytes(dir.file("b.rtf"));
  EXPECT_NE(b.find(comment + "(X3)"), std::string::npos) << b;
  EXPECT_EQ(b.find(comment + "[X2]"), std::string::npos);
}

TEST(CliColorize, RefusalsLeaveOutUnwritten) {
  TempDir dir;
  const std::string out = dir.file("out.rtf");
  // Linux line ends are lines like CR LF: no refusal, two lines coloured.
  const std::string lf = dir.write("lf.nc", "G1 X1\nX2\n");
  auto r = runCli({"colorize", "--view", "modes", lf, out});
  EXPECT_EQ(r.exitCode, 0) << r.err;
  EXPECT_NE(readBytes(out).find("\\par"), std::string::npos);
  std::filesystem::remove(out);

  const std::string in = dir.write("in.nc", "G1 X1\r\n");
  const std::string good = encodeSchemeRecord(bundledSchemes()[0]);
  std::string garbage = good;
  for (std::size_t i = 0; i < garbage.size(); i += 3) garbage[i] = static_cast<char>(i % 31);
  for (const std::string& data : {dir.write("short.dat", good.substr(0, 12000)), dir.write("garbage.dat", garbage),
                                  dir.write("empty.dat", ""), dir.file("missing.dat")}) {
    EXPECT_EQ(runCli({"colorize", "--view", "codes", "--data", data, in, out}), (CliResult{1, "", kDataProblem}));
  }
  EXPECT_EQ(runCli({"colorize", "--view", "codes", "--scheme", "5", in, out}), (CliResult{1, "", kDataProblem}));
  r = runCli({"colorize", "--view", "codes", dir.file("none.nc"), out});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("File not found"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(out));
}

TEST(CliColorize, UsageErrors) {
  EXPECT_EQ(runCli({"colorize", "in", "out"}).exitCode, 2);
  EXPECT_EQ(runCli({"colorize", "--view", "lines", "in", "out"}).exitCode, 2);
  EXPECT_EQ(runCli({"colorize", "--view", "modes", "in"}).exitCode, 2);
}

// Every real program completes: a program with Linux line ends colorizes exactly as the same text
// with CR LF line ends, into a whole document.
TEST(CliColorize, EveryCorpusProgramCompletes) {
  const std::string corpus = corpusDir("gcode");
  if (corpus.empty()) GTEST_SKIP() << "corpus not present";
  TempDir dir;
  int files = 0;
  for (const auto& entry : std::filesystem::directory_iterator(corpus)) {
    if (!entry.is_regular_file()) continue;
    ++files;
    const std::string in = entry.path().string();
    const std::string bytes = readBytes(in);
    const bool bareLf = bytes.find('\n') != std::string::npos && bytes.find('\r') == std::string::npos;
    std::string crlf;
    for (char c : bytes) {
      if (c == '\n' && bareLf) crlf += '\r';
      crlf += c;
    }
    const std::string fixed = dir.write("fixed.nc", crlf);
    for (const char* view : {"modes", "codes"}) {
      SCOPED_TRACE(entry.path().filename().string() + " " + view);
      auto r = runCli({"colorize", "--view", view, fixed, dir.file("twin.rtf")});
      ASSERT_EQ(r.exitCode, 0) << r.err;
      const std::string out = readBytes(dir.file("twin.rtf"));
      EXPECT_EQ(out.rfind("{\\rtf1", 0), 0u);
      EXPECT_EQ(out.substr(out.size() - 7), "\\par}\r\n");
      r = runCli({"colorize", "--view", view, in, dir.file("out.rtf")});
      ASSERT_EQ(r.exitCode, 0) << r.err;
      EXPECT_EQ(readBytes(dir.file("out.rtf")), out);
    }
  }
  EXPECT_GT(files, 0);
}
