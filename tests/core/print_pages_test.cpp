// The pages of a printed listing: plain page rows and breaks, the headings, rich lines with
// their formats, and the parts of a document a range of lines prints.
#include <gtest/gtest.h>

#include "document/print_pages.h"
#include "document/rtf_reader.h"
#include "document/standard_fonts.h"

using namespace lathwick;

namespace {

std::string textOf(const PrintLine& line) {
  std::string text;
  for (const PrintRun& run : line.runs) text += run.text;
  return text;
}

std::string program(int lines) {
  std::string text;
  for (int i = 1; i <= lines; ++i) text += "N" + std::to_string(i * 10) + " G01 X" + std::to_string(i) + "\r\n";
  return text;
}

}  // namespace

TEST(PrintPages, PageRowsAreTheCharacterRowsLessTen) {
  // A4 less half-inch margins is 770 points: 64 rows of 12 points; a 13.8-point line is one row.
  EXPECT_EQ(plainPageRows(770, printLineHeight(12)), 54);
  EXPECT_EQ(plainPageRows(720, printLineHeight(12)), 50);
  // A line two rows high halves the rows before the ten come off.
  EXPECT_EQ(plainPageRows(770, 24), 22);
}

TEST(PrintPages, HeadingItemsStartAtPrintZones) {
  const auto blanks = [](int n) { return std::string(static_cast<std::size_t>(n), ' '); };
  // Zones start at columns 0, 14, 28, 42 ...; the number has its sign blank and a blank after.
  EXPECT_EQ(plainHeading(1, "/cnc/part.nc", "23/11/2026 19:05"),
            "Page #" + blanks(9) + "1" + blanks(12) + "/cnc/part.nc" + blanks(2) + "23/11/2026 19:05");
  // An item that runs past its zone pushes the next one to the zone after.
  EXPECT_EQ(plainHeading(12, "/a/very/long/name.nc", "now"),
            "Page #" + blanks(9) + "12" + blanks(11) + "/a/very/long/name.nc" + blanks(8) + "now");
  EXPECT_EQ(plainHeading(3, "", ""), "Page #" + blanks(9) + "3 ");
}

TEST(PrintPages, PlainListingBreaksEveryRowsLessThreeLines) {
  const int rows = 10;
  const PrintedListing listing = layoutPlainListing(program(30), "part.nc", "now", rows);
  // First page: blank, heading, blank, then lines while the count (from 3) stays below r.
  ASSERT_GE(listing.pages.size(), 2u);
  const auto& first = listing.pages[0].lines;
  EXPECT_EQ(textOf(first[0]), "");
  EXPECT_EQ(textOf(first[1]), plainHeading(1, "part.nc", "now"));
  EXPECT_EQ(textOf(first[2]), "");
  EXPECT_EQ(first.size(), 3u + (rows - 4));
  EXPECT_EQ(textOf(first[3]), "N10 G01 X1");
  // Later pages: blank, "Page #" and the number only, then r - 3 lines.
  const auto& second = listing.pages[1].lines;
  EXPECT_EQ(textOf(second[1]), plainHeading(2, "", ""));
  EXPECT_EQ(second.size(), 2u + (rows - 3));
  EXPECT_EQ(textOf(second[2]), "N70 G01 X7");
  // 30 lines: 6 on the first page, 7 on each later one.
  EXPECT_EQ(listing.pages.size(), 5u);
  EXPECT_EQ(textOf(listing.pages[4].lines.back()), "N300 G01 X30");
  for (const PrintPage& page : listing.pages)
    for (const PrintLine& line : page.lines) EXPECT_EQ(line.runs.front().format.points, 12.0);
}

TEST(PrintPages, PlainListingEdges) {
  // An empty document prints its heading only; a lone CR ends a line; tabs reach the next
  // multiple of eight columns.
  EXPECT_EQ(layoutPlainListing("", "x", "now", 54).pages.at(0).lines.size(), 3u);
  const PrintedListing l = layoutPlainListing("A\rB\tC\r\n", "x", "now", 54);
  ASSERT_EQ(l.pages.at(0).lines.size(), 5u);
  EXPECT_EQ(textOf(l.pages[0].lines[3]), "A");
  EXPECT_EQ(textOf(l.pages[0].lines[4]), "B       C");
  // Page rows too small for any text still make progress: one line a page.
  EXPECT_EQ(layoutPlainListing(program(3), "x", "now", 2).pages.size(), 4u);
}

TEST(PrintPages, RichListingKeepsFormatsAndPutsTheHeadingFirst) {
  const RtfDocument doc = readRtf(
      "{\\rtf1\\ansi{\\fonttbl{\\f0\\fmodern Courier New;}{\\f1\\fswiss Arial;}}"
      "{\\colortbl\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\\li400"
      "\\f0\\fs20\\cf0 G00 \\f1\\fs40\\cf1\\b\\ul X10\\par\\f0\\fs20\\cf0\\b0\\ul0 (END)\\par}");
  const PrintedListing l = layoutRichListing(doc, richHeading("part.nc", "1/2/26", "10:00:00"), {500, 700}, 0x000000);
  ASSERT_EQ(l.pages.size(), 1u);
  const auto& lines = l.pages[0].lines;
  ASSERT_EQ(lines.size(), 4u);
  EXPECT_EQ(textOf(lines[0]), "part.nc  1/2/26  10:00:00");
  EXPECT_EQ(lines[0].runs[0].format.colour, 0x0000FFu);  // the first character's format
  EXPECT_EQ(textOf(lines[1]), "");
  ASSERT_EQ(lines[2].runs.size(), 2u);
  EXPECT_EQ(lines[2].runs[1].text, "X10");
  EXPECT_EQ(lines[2].runs[1].format.fontName, "Arial");
  EXPECT_EQ(lines[2].runs[1].format.points, 20.0);
  EXPECT_EQ(lines[2].runs[1].format.colour, 0xFF0000u);
  EXPECT_TRUE(lines[2].runs[1].format.bold);
  EXPECT_TRUE(lines[2].runs[1].format.underline);
  EXPECT_DOUBLE_EQ(lines[2].height, printLineHeight(20));  // the tallest run sets the line
  EXPECT_EQ(textOf(lines[3]), "(END)");
  EXPECT_EQ(l.indentPoints, 20.0);
  EXPECT_EQ(l.paperColour, 0u);
}

TEST(PrintPages, RichListingFillsPagesToThePrintableHeight) {
  std::string rtf = "{\\rtf1\\ansi{\\fonttbl{\\f0 Courier;}}\\f0\\fs20 ";
  for (int i = 0; i < 100; ++i) rtf += "N" + std::to_string(i) + "\\par ";
  const PrintedListing l = layoutRichListing(readRtf(rtf + "}"), "head", {500, 115}, 0xFFFFFF);
  // 10-point lines are 11.5 points: ten to a page of 115 points; 102 lines with the heading.
  ASSERT_EQ(l.pages.size(), 11u);
  for (std::size_t i = 0; i + 1 < l.pages.size(); ++i) EXPECT_EQ(l.pages[i].lines.size(), 10u);
  EXPECT_EQ(textOf(l.pages[10].lines.back()), "N99");
}

TEST(PrintPages, LinesOfADocumentForARangeOfLines) {
  EXPECT_EQ(plainLinesOf("a\r\nb\r\nc\r\n", 2, 3), "b\r\nc\r\n");
  EXPECT_EQ(plainLinesOf("a\r\nb\rc", 3, 9), "c");
  EXPECT_EQ(plainLinesOf("a\r\nb", 5, 9), "");
  const RtfDocument doc = readRtf("{\\rtf1{\\colortbl;\\red255\\green0\\blue0;}one\\par t\\cf1 wo\\par three\\par}");
  const RtfDocument two = richLinesOf(doc, 2, 2);
  EXPECT_EQ(two.text, "two\r\n");
  ASSERT_EQ(two.runs.size(), 2u);
  EXPECT_EQ(two.runs[1].start, 1u);
  EXPECT_EQ(two.formats[two.runs[1].format].colour, 0x0000FFu);
}

TEST(PrintPages, FontsMapToTheStandardFamilies) {
  for (const char* fixed : {"Courier New", "Consolas", "Lucida Console", "DejaVu Sans Mono", "Source Code Pro"})
    EXPECT_EQ(standardFamilyOf(fixed), StandardFamily::Courier) << fixed;
  for (const char* serif : {"Times New Roman", "Georgia", "DejaVu Serif"})
    EXPECT_EQ(standardFamilyOf(serif), StandardFamily::Times) << serif;
  for (const char* sans : {"Arial", "MS Sans Serif", "Verdana", ""})
    EXPECT_EQ(standardFamilyOf(sans), StandardFamily::Helvetica) << sans;
  EXPECT_EQ(standardFontName({StandardFamily::Times, true, true}), "Times-BoldItalic");
  EXPECT_EQ(standardFontName({StandardFamily::Helvetica, false, true}), "Helvetica-Oblique");
  EXPECT_EQ(standardFontName({StandardFamily::Courier, true, false}), "Courier-Bold");
  // Courier is 600 thousandths wide for every character; Helvetica's "i" is narrower than its "W".
  EXPECT_DOUBLE_EQ(standardTextWidth({StandardFamily::Courier}, 10, "G01 X1"), 36.0);
  EXPECT_LT(standardTextWidth({StandardFamily::Helvetica}, 10, "i"), standardTextWidth({StandardFamily::Helvetica}, 10, "W"));
}
