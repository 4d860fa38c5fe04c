// The transformation subcommands end to end: output bytes, count lines, ranges, and the
// scheme's frame around the rich-text passes.
#include <gtest/gtest.h>

#include "support/cli_runner.h"

using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::TempDir;

namespace {
const char* kProgram = "%\r\nO1000\r\n(SETUP)\r\nG00 X0\r\nN5 G01 X1\r\n";

std::string schemeHeader() {
  const auto r = runCli({"scheme", "header"});
  EXPECT_EQ(r.exitCode, 0) << r.err;
  return r.out.substr(0, r.out.size() - 1);  // without the tool's newline
}

// The body lines of a rich-text output, between the header line and the trailer line.
std::vector<std::string> richLines(const std::string& rtf) {
  std::vector<std::string> lines;
  size_t from = 0;
  for (size_t p; (p = rtf.find("\r\n", from)) != std::string::npos; from = p + 2) lines.push_back(rtf.substr(from, p - from));
  return lines;
}
}  // namespace

TEST(TransformCli, RenumberMethodsRangeAndCommentOnTheFiveLineProgram) {
  TempDir dir;
  const auto in = dir.write("in.nc", kProgram);
  auto r = runCli({"renumber", "--start", "100", "--increment", "10", "--char", "N", "--skip", "%", "--method", "0",
                   in, dir.file("m0.nc")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_TRUE(r.out.empty());
  EXPECT_EQ(dir.read("m0.nc"), "%\r\nN100O1000\r\nN110(SETUP)\r\nN120G00 X0\r\nN130 G01 X1\r\n");
  // Method 2 leaves comment lines alone; the comment text comes from the scheme unless --comment
  // says otherwise, so with ";" the "(SETUP)" line is numbered.
  r = runCli({"renumber", "--start", "100", "--increment", "10", "--char", "N", "--skip", "%", "--method", "2",
              "--lines", "3-5", "--comment", ";", in, dir.file("m2.nc")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(dir.read("m2.nc"), "%\r\nO1000\r\nN100(SETUP)\r\nN110G00 X0\r\nN120 G01 X1\r\n");
}

TEST(TransformCli, SpacesAndJunkFilter) {
  TempDir dir;
  const auto in = dir.write("in.nc", "N10G01X-1.5Y2.0F100\r\nG01 X1 ( A B )\r\n");
  ASSERT_EQ(runCli({"add-spaces", in, dir.file("add.nc")}).exitCode, 0);
  EXPECT_EQ(dir.read("add.nc"), "N10 G01 X-1.5 Y2.0 F100\r\nG01 X1 ( A B )\r\n");
  ASSERT_EQ(runCli({"remove-spaces", in, dir.file("rem.nc")}).exitCode, 0);  // the scheme's comment is kept
  EXPECT_EQ(dir.read("rem.nc"), "N10G01X-1.5Y2.0F100\r\nG01X1( A B )\r\n");
  const auto junk = dir.write("junk.nc", "\n\n\n%\nN10 G00\tX1\xff\n");
  const auto r = runCli({"junk-filter", junk, dir.file("clean.nc")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_TRUE(r.out.empty());
  EXPECT_EQ(dir.read("clean.nc"), "%\r\nN10 G00X1\r\n");
}

TEST(TransformCli, ReplaceWritesTheSchemeFrameAndCountsReplacements) {
  TempDir dir;
  const auto in = dir.write("in.nc", "G01 X1 (X1 HERE)\r\nG00 X1 {A}\r\n");
  const auto r = runCli({"replace", "--find", "x1", "--replace", "X2", "--exclude-comments", in, dir.file("o.rtf")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "2 Replacements made.\n");
  const auto lines = richLines(dir.read("o.rtf"));
  const std::string header = schemeHeader();
  const size_t headerLines = richLines(header + "\r\n").size();
  ASSERT_EQ(lines.size(), headerLines + 3);
  EXPECT_EQ(lines.front() + "\r\n", richLines(header + "\r\n").front() + "\r\n");
  EXPECT_EQ(lines.back(), "\\par}");
  const std::string& first = lines[headerLines];
  const std::string& second = lines[headerLines + 1];
  EXPECT_EQ(first.rfind("\\li", 0), 0u);
  EXPECT_EQ(second.rfind("\\par\\li", 0), 0u);
  // One marked X2 outside the comment (which options and marks are core SearchPass's).
  EXPECT_NE(first.find(" X2\\plain"), std::string::npos) << first;
}

TEST(TransformCli, HighlightKeepsTheTextAndRangeLimitsIt) {
  TempDir dir;
  const auto in = dir.write("in.nc", "X1\r\nX1\r\nX1\r\n");
  const auto r = runCli({"highlight", "--find", "X1", "--lines", "2-3", in, dir.file("o.rtf")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "2 Highlights made.\n");
  const std::string out = dir.read("o.rtf");
  EXPECT_NE(out.find("\\li200 X1\r\n"), std::string::npos) << out;  // line 1 plain
}

TEST(TransformCli, OperateScalesAndFormats) {
  TempDir dir;
  const auto in = dir.write("in.nc", "X10 Y-2.5 Z.1\r\nG01 X1 (MOVE X)\r\n");
  const auto r = runCli({"operate", "--address", "XYZ", "--operator", "*", "--value", "2", "--format", "##0.0###",
                         "--exclude-comments", in, dir.file("o.rtf")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "3 Operations made.\n");
  const std::string out = dir.read("o.rtf");
  for (const char* value : {"20.0\\plain", "-5.0\\plain", "0.2\\plain"}) EXPECT_NE(out.find(value), std::string::npos) << value;
  EXPECT_NE(out.find("G01 X1 (MOVE X)\r\n"), std::string::npos);
}

TEST(TransformCli, CommentOptionChangesTheDelimitersOfTheRichPasses) {
  TempDir dir;
  const auto in = dir.write("in.nc", "G01 X1 [X1] (X1)\r\n");
  const auto r = runCli({"highlight", "--find", "X1", "--exclude-comments", "--comment", "[", in, dir.file("o.rtf")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  EXPECT_EQ(r.out, "1 Highlights made.\n");  // stops at the X1 inside [ ]
  EXPECT_NE(dir.read("o.rtf").find("[X1] (X1)\r\n"), std::string::npos);
}
