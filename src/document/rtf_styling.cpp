#include "document/rtf_styling.h"

#include <cstring>

namespace lathwick {

StyleFormat styleFormatOf(const RtfFormatTable& doc, const RtfCharFormat& format, const StyleTable& table) {
  // Text that says nothing about its format is in the default style.
  if (format == RtfCharFormat{}) return table.defaultFormat();
  StyleFormat s;
  s.fontName = doc.fontName(format.font);
  s.fixedPitch = doc.fontFixedPitch(format.font);
  if (s.fontName.empty()) {
    s.fontName = table.defaultFormat().fontName;
    s.fixedPitch = table.defaultFormat().fixedPitch;
  }
  s.halfPoints = format.halfPoints;
  s.colour = format.colour;
  s.bold = format.bold;
  s.italic = format.italic;
  s.underline = format.underline;
  return s;
}

DocumentStyling styleDocument(const RtfDocument& doc, StyleTable& table) {
  DocumentStyling out;
  out.styles.assign(doc.text.size(), '\0');
  std::vector<int> styleOfFormat(doc.formats.size(), -1);
  for (std::size_t i = 0; i < doc.runs.size(); ++i) {
    const RtfRun& run = doc.runs[i];
    const std::size_t end = i + 1 < doc.runs.size() ? doc.runs[i + 1].start : doc.text.size();
    if (run.start >= end) continue;
    int& style = styleOfFormat[run.format];
    const RtfCharFormat& format = doc.formats[run.format];
    if (style < 0) style = table.styleFor(styleFormatOf(doc, format, table));
    std::memset(out.styles.data() + run.start, style, end - run.start);
    if (format.strike) {
      if (!out.strikeouts.empty() && out.strikeouts.back().end == run.start) {
        out.strikeouts.back().end = end;
      } else {
        out.strikeouts.push_back({run.start, end});
      }
    }
  }
  return out;
}

}  // namespace lathwick
