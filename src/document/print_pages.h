#pragma once
// The pages of a printed listing, laid out once for every way of printing: the editor paints
// them on the printer or the preview, the batch tool writes them to PDF. Plain printing sets
// the text in 12 points and breaks pages by counting lines; rich printing keeps the document's
// fonts and colours and fills each page to its printable height.
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/rtf_document.h"

namespace lathwick {

inline constexpr const char* kPrintingTitle = "Printing";
inline constexpr const char* kPrintSelectionQuestion = "Print only selection?";
inline constexpr const char* kPrintProblemMessage = "There was a problem printing to your printer.";
inline constexpr const char* kPrintingPlainStatus = "Printing...";
inline constexpr const char* kPrintingRichStatus = "Printing rich text...";
inline constexpr double kPlainPrintPoints = 12.0;
inline constexpr const char* kPlainPrintFont = "Courier New";

struct PrintFormat {
  std::string fontName = kPlainPrintFont;
  double points = kPlainPrintPoints;
  std::uint32_t colour = 0;  // red in the lowest byte; black
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool strike = false;
  bool operator==(const PrintFormat&) const = default;
};

struct PrintRun {
  std::string text;
  PrintFormat format;
};

struct PrintLine {
  std::vector<PrintRun> runs;  // an empty line keeps one run with no text, for its height
  double height = 0;           // points from this line's top to the next line's
};

struct PrintPage {
  std::vector<PrintLine> lines;
};

struct PrintedListing {
  std::vector<PrintPage> pages;
  std::uint32_t paperColour = 0xFFFFFF;  // what the page is filled with behind the text
  double indentPoints = 0;               // the left indent of every line
};

// The paper's printable area, in points.
struct PrintableArea {
  double width = 523;
  double height = 770;
};

// The height of a line of text in `points`, the spacing used by every printed line.
double printLineHeight(double points);

// Page rows r: the printable height and the line height rounded to whole character rows of
// 12 points, one divided by the other, less 10.
int plainPageRows(double printableHeight, double lineHeight);

// The first page's heading: "Page #", the page number, the file name and the date and time,
// each starting at the next print zone of 14 columns (numbers with their sign blank before
// them and a blank after them).
std::string plainHeading(int page, std::string_view fileName, std::string_view dateTime);

// The plain listing of `text` (lines split at CR LF or a lone CR). The first page starts with
// a blank line, the heading and a blank line; the count starts at 3 and each line adds one;
// when it reaches `rows` a new page starts with a blank line and "Page #" with its number, and
// the count goes back to 3.
PrintedListing layoutPlainListing(std::string_view text, std::string_view fileName, std::string_view dateTime,
                                  int rows);

// The heading of a rich-text print: file name, two blanks, date, two blanks, time.
std::string richHeading(std::string_view fileName, std::string_view date, std::string_view time);

// The rich listing: the heading and two line breaks before the document's text, in the format
// of its first character; every line keeps its runs' fonts and colours, and a page takes lines
// until the next would pass the printable height. `paperColour` fills the pages.
PrintedListing layoutRichListing(const RtfDocument& document, std::string_view heading, const PrintableArea& area,
                                 std::uint32_t paperColour);

}  // namespace lathwick

namespace lathwick {

// Lines first to last (1-based, inclusive) of plain text, with their line ends, as a selection
// of those lines would print them. Lines past the end are simply not there.
std::string_view plainLinesOf(std::string_view text, long first, long last);
// The same lines of a rich document, with their formats.
RtfDocument richLinesOf(const RtfDocument& document, long first, long last);

}  // namespace lathwick
