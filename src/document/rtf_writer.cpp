#include "document/rtf_writer.h"

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

// The header and the attribute string of every style of the table.
struct Tables {
  std::string header;
  std::vector<std::string> attributes;  // by style number

  Tables(const StyleTable& table, int indentTwips) : attributes(StyleTable::kStyleCount) {
    std::map<std::string, int> fonts{{table.defaultFormat().fontName, 0}};
    std::map<std::uint32_t, int> colours;
    std::string fontTable = "{\\fonttbl{\\f0\\fnil " + table.defaultFormat().fontName + ";}";
    std::string colourTable = "{\\colortbl;";
    for (int s : table.styles()) {
      const StyleFormat& f = table.format(s);
      auto font = fonts.find(f.fontName);
      if (font == fonts.end()) {
        font = fonts.emplace(f.fontName, static_cast<int>(fonts.size())).first;
        fontTable += "{\\f";
        appendNumber(fontTable, font->second);
        fontTable += "\\fnil " + f.fontName + ";}";
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

std::string writeRtf(const StyledTextView& view, const StyleTable& table) {
  const Tables tables(table, view.indentTwips);
  std::string out;
  out.reserve(view.text.size() + view.text.size() / 4 + tables.header.size() + 64);
  out += tables.header;
  std::string indent = "\\li";
  appendNumber(indent, view.indentTwips);
  indent += ' ';

  const std::string_view text = view.text;
  const bool styled = view.styles.size() == text.size();
  std::size_t strikeIndex = 0;
  int currentStyle = -1;
  bool currentStrike = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const unsigned char c = static_cast<unsigned char>(text[i]);
    if (c == '\r' && i + 1 < text.size() && text[i + 1] == '\n') {
      out += "\\par\r\n";
      out += indent;
      ++i;
      continue;
    }
    const int style = styled ? static_cast<unsigned char>(view.styles[i]) : 0;
    bool strike = false;
    if (view.strikeouts) {
      const auto& ranges = *view.strikeouts;
      while (strikeIndex < ranges.size() && ranges[strikeIndex].end <= i) ++strikeIndex;
      strike = strikeIndex < ranges.size() && ranges[strikeIndex].start <= i;
    }
    if (style != currentStyle || strike != currentStrike) {
      out += tables.attributes[static_cast<std::size_t>(style)];
      if (strike) out += "\\strike";
      out += ' ';
      currentStyle = style;
      currentStrike = strike;
    }
    switch (c) {
      case '\\': out += "\\\\"; break;
      case '{': out += "\\{"; break;
      case '}': out += "\\}"; break;
      case '\t': out += "\\tab "; break;
      default:
        if (c < 0x20 || c >= 0x80) {
          appendHex(out, c);
        } else {
          out += static_cast<char>(c);
        }
    }
  }
  out += "\\par}\r\n";
  return out;
}

void writeRtfFile(const std::string& path, const StyledTextView& view, const StyleTable& table) {
  writeFileAtomically(path, writeRtf(view, table));
}

}  // namespace lathwick
