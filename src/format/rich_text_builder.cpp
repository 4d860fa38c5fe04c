#include "format/rich_text_builder.h"

#include "platform/atomic_file.h"
#include "platform/bytes.h"

namespace lathwick {

namespace {

constexpr int kDefaultSet = 0;
constexpr int kDefaultStyle = kOtherTextStyle;

std::string num(long v) { return std::to_string(v); }

// A text field as a reader sees it: cut to the field's width, padding blanks removed.
std::string fitField(const std::string& text, std::size_t width) {
  return trimRightBlanks(std::string_view(text).substr(0, width));
}

// Every (set, style) pair in the builder's order: set 0 styles 0-13, then set 1 styles 0-13.
template <typename F>
void forAllStyles(SchemeRecord& r, F f) {
  for (auto& set : r.sets)
    for (auto& s : set) f(s);
}

std::string fontEntryText(const SchemeStyle& s) {
  return "\\" + trimBlanks(s.family) + " " + trimBlanks(s.fontName) + ";}";
}

// Font table: a name already present anywhere in the table text (even inside a longer name)
// gets no entry of its own, and its style keeps the number it had.
std::string buildFontTable(SchemeRecord& r) {
  const SchemeStyle& def = r.style(kDefaultSet, kDefaultStyle);
  const std::string defName = trimBlanks(def.fontName);
  std::string table = "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0" + fontEntryText(def);
  forAllStyles(r, [&](SchemeStyle& s) {
    if (trimBlanks(s.fontName) == defName) s.fontNumber = 0;
  });
  int n = 0;
  for (int set = 0; set < kSetCount; ++set)
    for (int i = 0; i < kStyleCount; ++i) {
      const std::string name = trimBlanks(r.sets[set][i].fontName);
      if (table.find(name) != std::string::npos) continue;
      ++n;
      table += "{\\f" + num(n) + fontEntryText(r.sets[set][i]);
      forAllStyles(r, [&](SchemeStyle& s) {
        if (trimBlanks(s.fontName) == name) s.fontNumber = static_cast<std::int16_t>(n);
      });
    }
  return table + "}";
}

// Colour table, under the same substring rule as the font table.
std::string buildColourTable(SchemeRecord& r) {
  const std::int32_t defColour = r.style(kDefaultSet, kDefaultStyle).colour;
  std::string table = "{\\colortbl" + colourEntry(defColour) + ";";
  r.style(0, 0).colourNumber = 0;
  forAllStyles(r, [&](SchemeStyle& s) {
    if (s.colour == defColour) s.colourNumber = 0;
  });
  int n = 0;
  for (int set = 0; set < kSetCount; ++set)
    for (int i = 0; i < kStyleCount; ++i) {
      const std::int32_t colour = r.sets[set][i].colour;
      const std::string entry = colourEntry(colour);
      if (table.find(entry) != std::string::npos) continue;
      ++n;
      table += entry + ";";
      forAllStyles(r, [&](SchemeStyle& s) {
        if (s.colour == colour) s.colourNumber = static_cast<std::int16_t>(n);
      });
    }
  return table + "}";
}

}  // namespace

std::string colourEntry(std::int32_t colour) {
  const auto c = static_cast<std::uint32_t>(colour);
  return "\\red" + num(c & 255) + "\\green" + num((c >> 8) & 255) + "\\blue" + num((c >> 16) & 255);
}

std::string attributeString(const SchemeRecord& record, int set, int style) {
  const SchemeStyle& s = record.style(set, style);
  std::string a = "\\f" + num(s.fontNumber) + "\\fs" + num(2L * s.size) + "\\cf" + num(s.colourNumber);
  a += s.bold ? "\\b" : "\\b0";
  a += s.italic ? "\\i" : "\\i0";
  a += s.strikeout ? "\\strike" : "\\strike0";
  a += s.underline ? "\\ul" : "\\ul0";
  return a + " ";
}

void buildSchemeFragments(SchemeRecord& r) {
  const std::string fonts = buildFontTable(r);
  const std::string colours = buildColourTable(r);
  const std::string defaultText = "\\li" + num(static_cast<long>(r.indentSteps()) * kTwipsPerIndentStep) + " " +
                                  attributeString(r, kDefaultSet, kDefaultStyle);
  r.rtfHeader = fitField(fonts + "\r\n" + colours + "\r\n\\deflang1033\\pard\\plain" + defaultText, kRtfHeaderWidth);
  for (int set = 0; set < kSetCount; ++set)
    for (int i = 0; i < kStyleCount; ++i)
      r.sets[set][i].attributes = fitField(attributeString(r, set, i), kAttributesWidth);
  r.rtfTrailer = fitField(kRtfTrailer, kRtfTrailerWidth);
}

std::string sampleText(const SchemeRecord& r, int set, int style) {
  const SchemeStyle& s = r.style(set, style);
  std::string t = "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0" + fontEntryText(s) + "}\r\n";
  t += "{\\colortbl" + colourEntry(s.colour) + ";}\r\n";
  t += "\\deflang1033\\pard\\plain\\li" + num(static_cast<long>(r.indentSteps()) * kTwipsPerIndentStep);
  t += "\\f0\\fs" + num(2L * s.size) + "\\cf0";
  if (s.bold) t += "\\b";
  if (s.italic) t += "\\i";
  if (s.strikeout) t += "\\strike";
  if (s.underline) t += "\\ul";
  return t + " SampleText\r\n\\par}\r\n";
}

std::string writeSample(const SchemeRecord& record, int set, int style, const std::string& appFolder) {
  const std::string path = appFolder + kSampleFileName;
  writeFileAtomically(path, sampleText(record, set, style));
  return path;
}

}  // namespace lathwick
