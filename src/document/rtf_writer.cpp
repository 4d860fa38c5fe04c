#include "document/rtf_writer.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>

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

// The attribute string of a format: \plain, its font, size and colour, and its flags.
std::string attributesOf(const StyleFormat& f, int font, int colour) {
  std::string a = "\\plain\\f";
  appendNumber(a, font);
  a += "\\fs";
  appendNumber(a, f.halfPoints);
  a += "\\cf";
  appendNumber(a, colour);
  if (f.bold) a += "\\b";
  if (f.italic) a += "\\i";
  if (f.underline) a += "\\ul";
  return a;
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
      attributes[static_cast<std::size_t>(s)] = attributesOf(f, font->second, colour);
    }
    for (auto& a : attributes)
      if (a.empty()) a = attributes[0];
    header = "{\\rtf1\\ansi\\ansicpg1252\\deff0" + fontTable + "}\r\n" + colourTable + "}\r\n\\pard\\li";
    appendNumber(header, indentTwips);
    header += ' ';
  }
};

bool plainByte(unsigned char c) { return c >= 0x20 && c < 0x80 && c != '\\' && c != '{' && c != '}'; }

// The writer hands its output on in pieces of about this size, so a large document is never
// held twice in memory.
constexpr std::size_t kPiece = 1 << 20;
constexpr std::size_t kNoEnd = static_cast<std::size_t>(-1);

// The style at each position of the text, asked in increasing order, from a run source; past
// its end every character is in style 0.
class RunCursor {
 public:
  explicit RunCursor(StyleRunSource* source) : source_(source) {
    if (!source_) runEnd_ = kNoEnd;
  }
  int styleAt(std::size_t i) {
    while (i >= runEnd_) advance();
    return style_;
  }
  std::size_t runEnd() const { return runEnd_; }

 private:
  void advance() {
    if (index_ >= batch_.size()) {
      batch_ = source_->next();
      index_ = 0;
      if (batch_.empty()) {
        style_ = 0;
        runEnd_ = kNoEnd;
        return;
      }
    }
    runEnd_ += batch_[index_].length;
    style_ = batch_[index_].style;
    ++index_;
  }

  StyleRunSource* source_;
  std::span<const StyleRun> batch_;
  std::size_t index_ = 0;
  std::size_t runEnd_ = 0;
  int style_ = 0;
};

// Writes the text: an attribute string wherever the style or the strikeout changes, \par for
// each CR LF, plain characters in stretches, the rest escaped.
class TextWriter {
 public:
  TextWriter(const StyledTextView& view, const Tables& tables, StyleRunSource* runs,
             const std::function<void(std::string_view)>& sink)
      : text_(view.text), tables_(tables), runs_(runs), sink_(sink),
        strikes_(view.strikeouts ? *view.strikeouts : kNone) {
    indent_ = "\\li";
    appendNumber(indent_, view.indentTwips);
    indent_ += ' ';
    out_.reserve(firstReserve(view.text.size(), tables.header.size()));
  }

  // Room for the whole output of a small document (the text grows by its paragraph marks,
  // attribute strings and escapes) or for one piece of a large one: a short write must not pay
  // for a megabyte it never uses.
  static std::size_t firstReserve(std::size_t textSize, std::size_t headerSize) {
    const std::size_t estimate = headerSize + textSize + textSize / 2 + 64;
    return std::min(kPiece + 4096, estimate);
  }

  void write() {
    out_ += tables_.header;
    const std::size_t n = text_.size();
    while (i_ < n) {
      if (out_.size() >= kPiece) {
        sink_(out_);
        out_.clear();
      }
      if (i_ >= boundary_) findStrike();
      const int style = runs_.styleAt(i_);
      if (style != currentStyle_ || strike_ != currentStrike_) changeFormat(style);
      const unsigned char c = static_cast<unsigned char>(text_[i_]);
      if (c == '\r' && i_ + 1 < n && text_[i_ + 1] == '\n') {
        // The paragraph mark carries the format of its CR, as the reader gives it to CR and LF.
        out_ += "\\par\r\n";
        out_ += indent_;
        i_ += 2;
      } else if (plainByte(c)) {
        copyPlain();
      } else {
        escape(c);
        ++i_;
      }
    }
    out_ += "\\par}\r\n";
    sink_(out_);
  }

 private:
  // Whether position i_ is struck out, and where that may next change.
  void findStrike() {
    while (strikeIndex_ < strikes_.size() && strikes_[strikeIndex_].end <= i_) ++strikeIndex_;
    if (strikeIndex_ == strikes_.size()) {
      strike_ = false;
      boundary_ = text_.size();
    } else if (strikes_[strikeIndex_].start <= i_) {
      strike_ = true;
      boundary_ = strikes_[strikeIndex_].end;
    } else {
      strike_ = false;
      boundary_ = strikes_[strikeIndex_].start;
    }
  }

  void changeFormat(int style) {
    out_ += tables_.attributes[static_cast<std::size_t>(style)];
    if (strike_) out_ += "\\strike";
    out_ += ' ';
    currentStyle_ = style;
    currentStrike_ = strike_;
  }

  // The stretch of plain characters in this format, in one go.
  void copyPlain() {
    const std::size_t limit = std::min({boundary_, runs_.runEnd(), i_ + kPiece, text_.size()});
    std::size_t j = i_ + 1;
    while (j < limit && plainByte(static_cast<unsigned char>(text_[j]))) ++j;
    out_.append(text_.data() + i_, j - i_);
    i_ = j;
  }

  void escape(unsigned char c) {
    switch (c) {
      case '\\': out_ += "\\\\"; break;
      case '{': out_ += "\\{"; break;
      case '}': out_ += "\\}"; break;
      case '\t': out_ += "\\tab "; break;
      default: appendHex(out_, c);
    }
  }

  static inline const std::vector<TextRange> kNone;
  std::string_view text_;
  const Tables& tables_;
  RunCursor runs_;
  const std::function<void(std::string_view)>& sink_;
  const std::vector<TextRange>& strikes_;
  std::string indent_;
  std::string out_;
  std::size_t i_ = 0;
  std::size_t strikeIndex_ = 0;
  std::size_t boundary_ = 0;  // where the strikeout may next begin or end
  bool strike_ = false;
  int currentStyle_ = -1;
  bool currentStrike_ = false;
};

}  // namespace

void writeRtf(const StyledTextView& view, const StyleTable& table, const std::function<void(std::string_view)>& sink) {
  const Tables tables(table, view.indentTwips);
  std::optional<CharacterStyleRuns> perCharacter;
  StyleRunSource* runs = view.runs;
  if (!runs && !view.styles.empty() && view.styles.size() == view.text.size()) runs = &perCharacter.emplace(view.styles);
  TextWriter(view, tables, runs, sink).write();
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
