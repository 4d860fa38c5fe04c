#include "document/print_pages.h"

#include <algorithm>
#include <cmath>

namespace lathwick {

namespace {

constexpr int kPrintZone = 14;
constexpr double kCharacterRow = 12.0;  // the height of a character row, in points
constexpr double kLineSpacing = 1.15;   // of the font size

std::vector<std::string_view> splitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  std::size_t start = 0;
  while (start < text.size()) {
    std::size_t end = text.find_first_of("\r", start);
    if (end == std::string_view::npos) end = text.size();
    lines.push_back(text.substr(start, end - start));
    start = end + 1;
    if (end + 1 < text.size() && text[end + 1] == '\n') ++start;
  }
  return lines;
}

// Tabs go to the next multiple of eight columns, as on a line printer.
std::string expandTabs(std::string_view line) {
  std::string out;
  for (const char c : line) {
    if (c != '\t') {
      out += c;
      continue;
    }
    do out += ' ';
    while (out.size() % 8 != 0);
  }
  return out;
}

PrintLine plainLine(std::string text) {
  PrintLine line;
  line.runs.push_back({std::move(text), PrintFormat{}});
  line.height = printLineHeight(kPlainPrintPoints);
  return line;
}

void appendZoned(std::string& out, std::string_view item) {
  if (!out.empty()) out.append(static_cast<std::size_t>((out.size() / kPrintZone + 1) * kPrintZone) - out.size(), ' ');
  out += item;
}

PrintFormat formatOf(const RtfDocument& document, std::uint32_t index) {
  const RtfCharFormat& f = document.formats.at(index);
  PrintFormat format;
  format.fontName = document.fontName(f.font);
  if (format.fontName.empty()) format.fontName = kPlainPrintFont;
  format.points = f.halfPoints / 2.0;
  format.colour = f.colour == kAutoColour ? 0 : f.colour;
  format.bold = f.bold;
  format.italic = f.italic;
  format.underline = f.underline;
  format.strike = f.strike;
  return format;
}

// Splits the document's text into lines of runs, the heading lines first.
std::vector<PrintLine> richLines(const RtfDocument& document, std::string_view heading) {
  const PrintFormat first = document.runs.empty() ? PrintFormat{} : formatOf(document, document.runs.front().format);
  std::vector<PrintLine> lines{PrintLine{{{std::string(heading), first}}, 0}, PrintLine{{{"", first}}, 0}};
  PrintLine line;
  PrintFormat last = first;
  const std::string& text = document.text;
  std::size_t run = 0;
  for (std::size_t at = 0; at <= text.size();) {
    if (at == text.size() || text[at] == '\r' || text[at] == '\n') {
      // A break at the very end closes the last line and starts no empty one.
      const bool open = at < text.size() || !line.runs.empty() || at == 0 || (text[at - 1] != '\n' && text[at - 1] != '\r');
      if (line.runs.empty()) line.runs.push_back({"", last});
      if (open) lines.push_back(std::move(line));
      line = {};
      if (at == text.size()) break;
      at += (text[at] == '\r' && at + 1 < text.size() && text[at + 1] == '\n') ? 2 : 1;
      continue;
    }
    while (run + 1 < document.runs.size() && document.runs[run + 1].start <= at) ++run;
    const PrintFormat format = run < document.runs.size() ? formatOf(document, document.runs[run].format) : last;
    std::size_t end = text.find_first_of("\r\n", at);
    if (end == std::string::npos) end = text.size();
    if (run + 1 < document.runs.size()) end = std::min(end, document.runs[run + 1].start);
    std::string piece = expandTabs(std::string_view(text).substr(at, end - at));
    if (!line.runs.empty() && line.runs.back().format == format)
      line.runs.back().text += piece;
    else
      line.runs.push_back({std::move(piece), format});
    last = format;
    at = end;
  }
  for (PrintLine& l : lines) {
    double points = 0;
    for (const PrintRun& r : l.runs) points = std::max(points, r.format.points);
    l.height = printLineHeight(points);
  }
  return lines;
}

}  // namespace

double printLineHeight(double points) { return points * kLineSpacing; }

int plainPageRows(double printableHeight, double lineHeight) {
  const long rows = std::lround(printableHeight / kCharacterRow);
  const long height = std::max(1L, std::lround(lineHeight / kCharacterRow));
  return static_cast<int>(rows / height - 10);
}

std::string plainHeading(int page, std::string_view fileName, std::string_view dateTime) {
  std::string out = "Page #";
  appendZoned(out, " " + std::to_string(page) + " ");
  if (!fileName.empty() || !dateTime.empty()) {
    appendZoned(out, fileName);
    appendZoned(out, dateTime);
  }
  return out;
}

PrintedListing layoutPlainListing(std::string_view text, std::string_view fileName, std::string_view dateTime,
                                  int rows) {
  PrintedListing listing;
  int page = 1;
  listing.pages.push_back({{plainLine(""), plainLine(plainHeading(page, fileName, dateTime)), plainLine("")}});
  int count = 3;
  for (const std::string_view line : splitLines(text)) {
    if (++count >= rows) {
      ++page;
      listing.pages.push_back({{plainLine(""), plainLine(plainHeading(page, "", ""))}});
      count = 3;
    }
    listing.pages.back().lines.push_back(plainLine(expandTabs(line)));
  }
  return listing;
}

std::string richHeading(std::string_view fileName, std::string_view date, std::string_view time) {
  return std::string(fileName) + "  " + std::string(date) + "  " + std::string(time);
}

PrintedListing layoutRichListing(const RtfDocument& document, std::string_view heading, const PrintableArea& area,
                                 std::uint32_t paperColour) {
  PrintedListing listing;
  listing.paperColour = paperColour;
  listing.indentPoints = document.indentTwips / 20.0;
  double used = 0;
  for (PrintLine& line : richLines(document, heading)) {
    if (listing.pages.empty() || (used + line.height > area.height && !listing.pages.back().lines.empty())) {
      listing.pages.emplace_back();
      used = 0;
    }
    used += line.height;
    listing.pages.back().lines.push_back(std::move(line));
  }
  return listing;
}

}  // namespace lathwick
