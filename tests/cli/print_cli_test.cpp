// lathwick-cli print: the pages of a plain listing read back through pdftotext, and the colours
// of a rich listing found on a page rendered with pdftoppm.
#include <gtest/gtest.h>

#include <regex>
#include <set>
#include <sstream>

#include "format/bundled_schemes.h"
#include "support/cli_runner.h"

using namespace lathwick;
using lathwick::test::readBytes;
using lathwick::test::runCli;
using lathwick::test::shellQuote;
using lathwick::test::TempDir;

namespace {

bool haveTool(const char* tool) { return std::system((std::string("command -v ") + tool + " >/dev/null").c_str()) == 0; }

// The text of every page, split at the form feeds pdftotext ends pages with.
std::vector<std::string> pdfPages(const TempDir& dir, const std::string& pdf) {
  const std::string txt = dir.file("pages.txt");
  EXPECT_EQ(std::system(("pdftotext -layout " + shellQuote(pdf) + " " + shellQuote(txt)).c_str()), 0);
  std::vector<std::string> pages;
  std::stringstream all(readBytes(txt));
  for (std::string page; std::getline(all, page, '\f');) pages.push_back(page);
  if (!pages.empty() && pages.back().find_first_not_of(" \n") == std::string::npos) pages.pop_back();
  return pages;
}

std::vector<std::string> nonEmptyLines(const std::string& page) {
  std::vector<std::string> lines;
  std::stringstream in(page);
  for (std::string line; std::getline(in, line);)
    if (line.find_first_not_of(' ') != std::string::npos) lines.push_back(line);
  return lines;
}

std::string program(int lines) {
  std::string text;
  for (int i = 1; i <= lines; ++i) text += "N" + std::to_string(i) + " G01 X" + std::to_string(i) + ".5\r\n";
  return text;
}

// Every colour of a binary PPM image, as 0xBBGGRR like the schemes keep them.
std::set<std::int32_t> ppmColours(const std::string& bytes) {
  std::istringstream in(bytes);
  std::string magic;
  int width = 0, height = 0, maxValue = 0;
  in >> magic >> width >> height >> maxValue;
  in.get();
  EXPECT_EQ(magic, "P6");
  std::set<std::int32_t> colours;
  for (long i = 0; i < static_cast<long>(width) * height; ++i) {
    const int r = in.get(), g = in.get(), b = in.get();
    if (!in) break;
    colours.insert(r | (g << 8) | (b << 16));
  }
  return colours;
}

}  // namespace

TEST(CliPrint, PlainListingOfAFiveHundredLineProgram) {
  if (!haveTool("pdftotext")) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
  TempDir dir;
  const std::string in = dir.write("part500.nc", program(500));
  const std::string out = dir.file("part500.pdf");
  const auto r = runCli({"print", "--plain", in, out});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const std::vector<std::string> pages = pdfPages(dir, out);
  // A4 less half-inch margins gives r = 54 page rows: 50 lines on the first page (after its
  // heading), r - 3 = 51 on each later one: 500 lines take 10 pages.
  ASSERT_EQ(pages.size(), 10u);
  int expected = 1;
  for (std::size_t p = 0; p < pages.size(); ++p) {
    const auto lines = nonEmptyLines(pages[p]);
    ASSERT_FALSE(lines.empty());
    const std::regex heading("\\s*Page #\\s+" + std::to_string(p + 1) + "\\s*(.*)");
    std::smatch m;
    ASSERT_TRUE(std::regex_match(lines[0], m, heading)) << lines[0];
    if (p == 0)
      EXPECT_NE(m[1].str().find("part500.nc"), std::string::npos) << "the first page names the file";
    else
      EXPECT_EQ(m[1].str(), "") << "later pages carry only Page # and their number";
    const std::size_t count = lines.size() - 1;
    if (p + 1 < pages.size()) {
      EXPECT_EQ(count, p == 0 ? 50u : 51u) << "page " << p + 1;
    }
    for (std::size_t i = 1; i < lines.size(); ++i, ++expected)
      EXPECT_NE(lines[i].find("N" + std::to_string(expected) + " G01 X" + std::to_string(expected) + ".5"),
                std::string::npos)
          << lines[i];
  }
  EXPECT_EQ(expected, 501);
}

TEST(CliPrint, LinesPrintsOnlyTheRangeAsASelectionWould) {
  if (!haveTool("pdftotext")) GTEST_SKIP() << "pdftotext (poppler-utils) is not installed";
  TempDir dir;
  const std::string in = dir.write("part.nc", program(200));
  const auto r = runCli({"print", "--plain", "--lines", "101-110", in, dir.file("out.pdf")});
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const auto pages = pdfPages(dir, dir.file("out.pdf"));
  ASSERT_EQ(pages.size(), 1u);
  const auto lines = nonEmptyLines(pages[0]);
  ASSERT_EQ(lines.size(), 11u);
  EXPECT_NE(lines[1].find("N101 G01"), std::string::npos);
  EXPECT_NE(lines[10].find("N110 G01"), std::string::npos);
}

TEST(CliPrint, RichListingShowsTheSchemesColours) {
  if (!haveTool("pdftoppm") || !haveTool("pdftotext")) GTEST_SKIP() << "poppler-utils is not installed";
  TempDir dir;
  const std::string in = dir.write("modes.nc",
                                   "(ROUGH PASS)\r\nG00 X0 Y0\r\nG01 X10 Y5 F200\r\nG02 X20 Y0 I5 J0\r\n"
                                   "G03 X30 Y5 I0 J5\r\n/M01\r\nM30\r\n");
  const std::string out = dir.file("modes.pdf");
  const auto r = runCli({"print", "--rich", "--scheme", "2", in, out});  // Night Shift: light on dark
  ASSERT_EQ(r.exitCode, 0) << r.err;
  const auto lines = nonEmptyLines(pdfPages(dir, out).at(0));
  ASSERT_GE(lines.size(), 8u);
  EXPECT_NE(lines[0].find("modes.nc  "), std::string::npos) << "the heading comes first: " << lines[0];
  EXPECT_NE(lines[1].find("(ROUGH PASS)"), std::string::npos);

  const std::string image = dir.file("page");
  ASSERT_EQ(std::system(("pdftoppm -r 60 -aa no -aaVector no -singlefile -f 1 -l 1 " + shellQuote(out) + " " +
                         shellQuote(image))
                            .c_str()),
            0);
  const std::set<std::int32_t> colours = ppmColours(readBytes(image + ".ppm"));
  const SchemeRecord night = bundledSchemes()[1];
  EXPECT_TRUE(colours.count(night.backColour)) << "the page takes the scheme's background";
  for (int style : {kCommentStyle, kG00Mode, kG01Mode, kG02Mode, kG03Mode, kBlockSkipStyle})
    EXPECT_TRUE(colours.count(night.style(0, style).colour)) << kFixedStyleLabels[static_cast<std::size_t>(style)];
  EXPECT_FALSE(colours.count(0xFFFFFF)) << "nothing of the page is left white";
}

TEST(CliPrint, RefusalsAndUsage) {
  TempDir dir;
  const std::string out = dir.file("out.pdf");
  auto r = runCli({"print", dir.file("missing.nc"), out});
  EXPECT_EQ(r.exitCode, 2);
  EXPECT_NE(r.err.find("--plain"), std::string::npos) << r.err;
  r = runCli({"print", "--plain", "--rich", dir.file("missing.nc"), out});
  EXPECT_EQ(r.exitCode, 2);
  r = runCli({"print", "--plain", dir.file("missing.nc"), out});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_NE(r.err.find("File not found"), std::string::npos) << r.err;
  EXPECT_FALSE(std::filesystem::exists(out));
  // Bare line feeds are refused for a rich print, as the colorizer refuses them.
  r = runCli({"print", "--rich", dir.write("lf.nc", "G1 X1\nX2\n"), out});
  EXPECT_EQ(r.exitCode, 1);
  EXPECT_FALSE(std::filesystem::exists(out));
}
