#include "document/print_pdf.h"

#include <algorithm>

#include "document/pdf_writer.h"

namespace lathwick {

namespace {

constexpr double kAscent = 0.8;          // of the font size, from a line's top to its baseline
constexpr double kUnderlineDrop = 0.12;  // below the baseline
constexpr double kStrikeRise = 0.28;     // above the baseline
constexpr double kRuleThickness = 0.06;

void writeRun(PdfWriter& pdf, double x, double baseline, const PrintRun& run, double width) {
  const PrintFormat& f = run.format;
  const StandardFont font{standardFamilyOf(f.fontName), f.bold, f.italic};
  pdf.text(x, baseline, font, f.points, f.colour, run.text);
  if (f.underline)
    pdf.line(x, baseline + f.points * kUnderlineDrop, x + width, baseline + f.points * kUnderlineDrop,
             f.points * kRuleThickness, f.colour);
  if (f.strike)
    pdf.line(x, baseline - f.points * kStrikeRise, x + width, baseline - f.points * kStrikeRise,
             f.points * kRuleThickness, f.colour);
}

void writeLine(PdfWriter& pdf, double left, double top, const PrintLine& line) {
  double ascent = 0;
  for (const PrintRun& run : line.runs) ascent = std::max(ascent, run.format.points * kAscent);
  const double baseline = top + ascent;
  double x = left;
  for (const PrintRun& run : line.runs) {
    const StandardFont font{standardFamilyOf(run.format.fontName), run.format.bold, run.format.italic};
    const double width = standardTextWidth(font, run.format.points, run.text);
    if (!run.text.empty()) writeRun(pdf, x, baseline, run, width);
    x += width;
  }
}

}  // namespace

std::string listingPdf(const PrintedListing& listing, const PaperSize& paper) {
  PdfWriter pdf;
  for (const PrintPage& page : listing.pages) {
    pdf.beginPage(paper.width, paper.height);
    if ((listing.paperColour & 0xFFFFFF) != 0xFFFFFF) pdf.fillRect(0, 0, paper.width, paper.height, listing.paperColour);
    double top = paper.margin;
    for (const PrintLine& line : page.lines) {
      writeLine(pdf, paper.margin + listing.indentPoints, top, line);
      top += line.height;
    }
  }
  return pdf.finish();
}

}  // namespace lathwick
