#include "document/rtf_writer.h"

#include <algorithm>
#include <charconv>
#include <map>

#include "platform/atomic_file.h"

namespace lathwick {
namespace {

void appendNumber(std::string& out, long value) {
  char buf[24];
  const auto r = std::to_chars(buf, buf + sizeof buf, value);
  out.append(buf, r.ptr);
}

void appendColour(std::string& out, std::uint32_t c) {
  out += "\\red";
  appendNumber(out, c & 0xFF);
  out += "\\green";
  appendNumber(out, (c >> 8) & 0xFF);
  out += "\\blue";
  appendNumber(out, (c >> 16) & 0xFF);
  out += ';';
}

void appendHex(std::string& out, unsigned char b) {
  static const char kDigits[] = "0123456789abcdef";
  out += "\\'";
  out += kDigits[b >> 4];
  out += kDigits[b & 15];
}

// A font table entry is a name and its pitch: fixed-pitch fonts say so with their family keyword,
// so that a reader without the font can stand in a fixed-pitch one. The same name with both
// pitches gets two entries, so that a document reads back exactly as it was.
using FontKey = std::pair<std::string, bool>;

std::string fontEntry(int number, const FontKey& font);

// A font name as a font table entry: the RTF specials escaped, ";" (which ends the entry) left
// out, characters outside ASCII as \'hh.
std::string fontEntryName(const std::string& name) {
  std::string out;
  for (const char ch : name) {
    const auto c = static_cast<unsigned char>(ch);
    if (c == '\\' || c == '{' || c == '}') {
      out += '\\';
      out += ch;
    } else if (c >= 0x80) {
      appendHex(out, c);
    } else if (c >= 0x20 && c != ';') {
      out += ch;
    }
  }
  return out;
}

std::string fontEntry(int number, const FontKey& font) {
  std::string entry = "{\\f";
  appendNumber(entry, number);
  entry += font.second ? "\\fmodern " : "\\fnil ";
  return entry + fontEntryName(font.first) + ";}";
}

// The header and the attribute string of every style of the table.
struct Tables {
  std::string header;
  std::vector<std::string> attributes;  // by style number

  Tables(const StyleTable& table, int indentTwips) : attributes(StyleTable::kStyleCount) {
    const FontKey defaultFont{table.defaultFormat().fontName, table.defaultFormat().fixedPitch};
    std::map<FontKey, int> fonts{{defaultFont, 0}};
    std::map<std::uint32_t, int> colours;
    std::string fontTable = "{\\fonttbl" + fontEntry(0, defaultFont);
    std::string colourTable = "{\\colortbl;";
    for (int s : table.styles()) {
      const StyleFormat& f = table.format(s);
      const FontKey key{f.fontName, f.fixedPitch};
      auto font = fonts.find(key);
      if (font == fonts.end()) {
        font = fonts.emplace(key, static_cast<int>(fonts.size())).first;
        fontTable += fontEntry(font->second, key);
      }
      int colour = 0;
      if (f.colour != kAutoColour) {
        auto c = colours.find(f.colour);
        if (c == colours.end()) {
          c = colours.emplace(f.colour, static_cast<int>(colours.size()) + 1).first;
          appendColour(colourTable, f.colour);
        }
        colour = c->second;
      }
      std::string& a = attributes[static_cast<std::size_t>(s)];
      a = "\\plain\\f";
      appendNumber(a, font->second);
      a += "\\fs";
      appendNumber(a, f.halfPoints);
      a += "\\cf";
      appendNumber(a, colour);
      if (f.bold) a += "\\b";
      if (f.italic) a += "\\i";
      if (f.underline) a += "\\ul";
    }
    for (auto& a : attributes)
      if (a.empty()) a = attributes[0];
    header = "{\\rtf1\\ansi\\ansicpg1252\\deff0" + fontTable + "}\r\n" + colourTable + "}\r\n\\pard\\li";
    appendNumber(header, indentTwips);
    header += ' ';
  }
};

}  // namespace

namespace {

bool plainByte(unsigned char c) { return c >= 0x20 && c < 0x80 && c != '\\' && c != '{' && c != '}'; }

constexpr std::size_t kPiece = 1 << 20;

}  // namespace

void writeRtf(const StyledTextView& view, const StyleTable& table, const std::function<void(std::string_view)>& sink) {
  const Tables tables(table, view.indentTwips);
  const std::string_view text = view.text;
  const std::size_t n = text.size();
  std::string out;
  out.reserve(kPiece + 4096);
  out += tables.header;
  std::string indent = "\\li";
  appendNumber(indent, view.indentTwips);
  indent += ' ';

  const bool styled = view.styles.size() == n;
  static const std::vector<TextRange> kNone;
  const std::vector<TextRange>& strikes = view.strikeouts ? *view.strikeouts : kNone;
  std::size_t strikeIndex = 0;
  std::size_t boundary = 0;  // where the strikeout may next begin or end
  bool strike = false;
  int currentStyle = -1;
  bool currentStrike = false;
  std::size_t i = 0;
  while (i < n) {
    if (out.size() >= kPiece) {
      sink(out);
      out.clear();
    }
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (i >= boundary) {
      while (strikeIndex < strikes.size() && strikes[strikeIndex].end <= i) ++strikeIndex;
      if (strikeIndex == strikes.size()) {
        strike = false;
        boundary = n;
      } else if (strikes[strikeIndex].start <= i) {
        strike = true;
        boundary = strikes[strikeIndex].end;
      } else {
        strike = false;
        boundary = strikes[strikeIndex].start;
      }
    }
    const int style = styled ? static_cast<unsigned char>(view.styles[i]) : 0;
    if (style != currentStyle || strike != currentStrike) {
      out += tables.attributes[static_cast<std::size_t>(style)];
      if (strike) out += "\\strike";
      out += ' ';
      currentStyle = style;
      currentStrike = strike;
    }
    if (c == '\r' && i + 1 < n && text[i + 1] == '\n') {
      // The paragraph mark carries the format of its CR, as the reader gives it to CR and LF.
      out += "\\par\r\n";
      out += indent;
      i += 2;
      continue;
    }
    if (plainByte(c)) {
      // Copy the stretch of plain characters in this format in one go.
      const std::size_t limit = std::min(boundary, i + kPiece);
      std::size_t j = i + 1;
      while (j < limit && plainByte(static_cast<unsigned char>(text[j])) &&
             (!styled || static_cast<unsigned char>(view.styles[j]) == style))
        ++j;
      out.append(text.data() + i, j - i);
      i = j;
      continue;
    }
    switch (c) {
      case '\\': out += "\\\\"; break;
      case '{': out += "\\{"; break;
      case '}': out += "\\}"; break;
      case '\t': out += "\\tab "; break;
      default: appendHex(out, c);
    }
    ++i;
  }
  out += "\\par}\r\n";
  sink(out);
}

std::string writeRtf(const StyledTextView& view, const StyleTable& table) {
  std::string rtf;
  writeRtf(view, table, [&rtf](std::string_view piece) { rtf += piece; });
  return rtf;
}

void writeRtfFile(const std::string& path, const StyledTextView& view, const StyleTable& table) {
  AtomicFileWriter file(path);
  writeRtf(view, table, [&file](std::string_view piece) { file.write(piece); });
  file.commit();
}

}  // namespace lathwick
