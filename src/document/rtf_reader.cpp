// The rich-text reader. One pass over the bytes with a stack of group states; text goes straight
// into the document, formats are interned as they first carry text. Plain text between control
// words is copied in blocks, so the colorizer's large output loads at memory speed.
// The reader's state is declared in rtf_reader_state.h and its font and colour tables are read in
// rtf_reader_tables.cpp; the per-byte pass stays here, private to this file, so the compiler can
// fold it into one loop.
#include "document/rtf_reader.h"

#include <algorithm>
#include <cstring>
#include <climits>

#include "document/rtf_reader_state.h"
#include "document/rtf_source_file.h"

namespace lathwick {
namespace {

using rtf::Word;
using Destination = detail::RtfDestination;

constexpr std::size_t kMaxDepth = 1024;  // deeper groups share their parent's state
constexpr int kMaxControlWordLength = 32;
constexpr int kMinHalfPoints = 2;
constexpr int kMaxHalfPoints = 3276;  // what the text control can show

// Bytes that end a stretch of plain text: the three RTF specials and control bytes but TAB.
struct TextStops {
  bool stop[256] = {};
  constexpr TextStops() {
    for (int c = 0; c < 0x20; ++c) stop[c] = c != '\t';
    stop[static_cast<unsigned char>('\\')] = stop[static_cast<unsigned char>('{')] = stop[static_cast<unsigned char>('}')] = true;
  }
};
constexpr TextStops kTextStops;

bool isLetter(unsigned char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }
bool isDigit(unsigned char c) { return c >= '0' && c <= '9'; }
int hexValue(unsigned char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

class Reader : private detail::RtfReaderState {
 public:
  explicit Reader(std::string_view rtf) : RtfReaderState(rtf) {}

  RtfDocument run() {
    while (p_ < end_) {
      const unsigned char c = static_cast<unsigned char>(*p_);
      if (c == '\\') {
        if (replayFormatRun()) continue;
        wordStart_ = p_;
        ++p_;
        controlSequence();
      } else if (c == '{') {
        endFormatRun(p_);
        ++p_;
        openGroup();
      } else if (c == '}') {
        endFormatRun(p_);
        ++p_;
        closeGroup();
      } else {
        endFormatRun(p_);
        plainBytes();
      }
    }
    finish();
    return std::move(doc_);
  }

 private:
  // ---- groups -----------------------------------------------------------------------------
  void openGroup() {
    unicodeSkipLeft_ = 0;
    if (stack_.size() >= kMaxDepth) {
      ++overflowDepth_;
      return;
    }
    stack_.push_back(state_);
  }

  void closeGroup() {
    unicodeSkipLeft_ = 0;
    if (overflowDepth_ > 0) {
      --overflowDepth_;
      return;
    }
    if (stack_.empty()) return;  // one closing brace too many: ignore it
    const Destination closing = state_.destination;
    state_ = stack_.back();
    stack_.pop_back();
    if (closing == Destination::FontTable && state_.destination != Destination::FontTable) commitFont();
    formatDirty_ = true;
  }

  // ---- text ------------------------------------------------------------------------------
  bool directCodePage() const {
    return state_.codePage == kCodePageWindows1252 || state_.codePage == kCodePageSymbol;
  }

  void plainBytes() {
    if (state_.destination == Destination::ColourTable) {
      // Only ";" separates colour entries. Anything else means the table was cut short (a
      // scheme header longer than its field): what follows is the document.
      while (p_ < end_ && (*p_ == ';' || *p_ == ' ' || *p_ == '\r' || *p_ == '\n')) {
        if (*p_ == ';') commitColour();
        ++p_;
      }
      if (p_ < end_ && *p_ != '\\' && *p_ != '{' && *p_ != '}') state_.destination = Destination::Text;
      return;
    }
    if (state_.destination != Destination::Text) {
      const char* start = p_;
      while (p_ < end_ && *p_ != '\\' && *p_ != '{' && *p_ != '}') ++p_;
      tableText(start, p_);
      return;
    }
    if (unicodeSkipLeft_ == 0 && !pendingLead_ && directCodePage()) {
      // The common case: copy the block up to the next special byte in one go.
      const char* start = p_;
      while (p_ < end_ && !kTextStops.stop[static_cast<unsigned char>(*p_)]) ++p_;
      if (p_ > start) {
        beginText();
        doc_.text.append(start, p_);
        return;
      }
    }
    const unsigned char c = static_cast<unsigned char>(*p_++);
    if (c < 0x20 && c != '\t') return;  // line ends and stray control bytes are not text
    textByte(c);
  }
  // One character of text in the current code page (from the source or a \'hh escape).
  void textByte(unsigned char b) {
    if (state_.destination != Destination::Text) {
      if (state_.destination == Destination::FontTable && b >= 0x20) fontName_ += static_cast<char>(b);
      return;
    }
    if (unicodeSkipLeft_ > 0) {
      --unicodeSkipLeft_;
      return;
    }
    if (pendingLead_) {  // second byte of a double-byte character the editor cannot show
      pendingLead_ = false;
      put('?');
      return;
    }
    const int cp = state_.codePage;
    if (b < 0x80 || cp == kCodePageWindows1252 || cp == kCodePageSymbol) {
      put(static_cast<char>(b));
    } else if (isDoubleByteCodePage(cp) && isLeadByte(cp, b)) {
      pendingLead_ = true;
    } else {
      const int w = unicodeToWindows1252(codePageToUnicode(cp, b));
      put(w < 0 ? '?' : static_cast<char>(w));
    }
  }

  void unicodeChar(long value) {
    if (state_.destination == Destination::Text) {
      const char32_t u = static_cast<char32_t>(value < 0 ? value + 65536 : value) & 0xFFFF;
      pendingLead_ = false;
      if (u == 0 || (u >= 0xDC00 && u <= 0xDFFF)) {
        // a NUL, or the second half of a surrogate pair whose '?' came with the first half
      } else {
        const int w = (u >= 0xD800 && u <= 0xDBFF) ? -1 : unicodeToWindows1252(u);
        put(w < 0 ? '?' : static_cast<char>(w));
      }
    }
    unicodeSkipLeft_ = state_.unicodeSkip;
  }

  void put(char c) {
    beginText();
    doc_.text.push_back(c);
  }

  // A character written by a control word (tab, dash, quote...): it stands in for the
  // fallback characters after \uN too.
  void symbol(char c) {
    if (state_.destination != Destination::Text) return;
    if (unicodeSkipLeft_ > 0) {
      --unicodeSkipLeft_;
      return;
    }
    put(c);
  }

  void paragraphBreak(bool canBeFinal) {
    if (state_.destination != Destination::Text) return;
    unicodeSkipLeft_ = 0;
    pendingLead_ = false;
    beginText();
    doc_.text += "\r\n";
    lastBreakEnd_ = canBeFinal ? doc_.text.size() : 0;
  }

  // Starts a new run when the format changed since the last text.
  void beginText() {
    if (!indentKnown_) {
      indentKnown_ = true;
      doc_.indentTwips = state_.indentTwips;
    }
    if (!formatDirty_ && !doc_.runs.empty()) return;
    formatDirty_ = false;
    const std::uint32_t index = formatIndex(state_.format);
    if (!doc_.runs.empty() && doc_.runs.back().format == index) return;
    if (!doc_.runs.empty() && doc_.runs.back().start == doc_.text.size()) {
      doc_.runs.back().format = index;
      if (doc_.runs.size() > 1 && doc_.runs[doc_.runs.size() - 2].format == index) doc_.runs.pop_back();
      return;
    }
    doc_.runs.push_back({doc_.text.size(), index});
  }

  std::uint32_t formatIndex(const RtfCharFormat& f) {
    const std::uint64_t key = (static_cast<std::uint64_t>(static_cast<std::uint16_t>(f.font)) << 48) |
                              (static_cast<std::uint64_t>(static_cast<std::uint16_t>(f.halfPoints)) << 32) |
                              (static_cast<std::uint64_t>(f.colour == kAutoColour ? 0x1000000u : f.colour) << 4) |
                              (f.bold ? 1u : 0u) | (f.italic ? 2u : 0u) | (f.underline ? 4u : 0u) |
                              (f.strike ? 8u : 0u);
    if (key == lastKey_ && !doc_.formats.empty()) return lastIndex_;
    auto [it, inserted] = formatIndexes_.try_emplace(key, static_cast<std::uint32_t>(doc_.formats.size()));
    if (inserted) doc_.formats.push_back(f);
    lastKey_ = key;
    lastIndex_ = it->second;
    return it->second;
  }

  // ---- control words and symbols ---------------------------------------------------------
  void controlSequence() {
    if (p_ >= end_) return;
    const unsigned char c = static_cast<unsigned char>(*p_);
    if (!isLetter(c)) {
      endFormatRun(wordStart_);
      ++p_;
      controlSymbol(c);
      return;
    }
    char name[kMaxControlWordLength];
    int length = 0;
    std::uint64_t packed = 0;
    while (p_ < end_ && isLetter(static_cast<unsigned char>(*p_))) {
      if (length < 8) packed |= static_cast<std::uint64_t>(static_cast<unsigned char>(*p_)) << (8 * length);
      if (length < kMaxControlWordLength) name[length++] = *p_;
      ++p_;
    }
    bool hasParameter = false;
    long long value = 0;
    bool negative = false;
    if (p_ < end_ && *p_ == '-' && p_ + 1 < end_ && isDigit(static_cast<unsigned char>(p_[1]))) {
      negative = true;
      ++p_;
    }
    while (p_ < end_ && isDigit(static_cast<unsigned char>(*p_))) {
      hasParameter = true;
      if (value < INT_MAX) value = value * 10 + (*p_ - '0');  // absurd numbers saturate
      ++p_;
    }
    if (p_ < end_ && *p_ == ' ') ++p_;  // the delimiting blank belongs to the control word
    value = std::min<long long>(value, INT_MAX);
    const int param = static_cast<int>(negative ? -value : value);
    const Word word = length <= 8 ? rtf::lookupPackedWord(packed) : rtf::lookupWord(std::string_view(name, length));
    controlWord(word, hasParameter, param);
  }

  void controlSymbol(unsigned char c) {
    switch (c) {
      case '\'': {
        int b = -1;
        if (p_ < end_ && hexValue(static_cast<unsigned char>(*p_)) >= 0) {
          b = hexValue(static_cast<unsigned char>(*p_++));
          if (p_ < end_ && hexValue(static_cast<unsigned char>(*p_)) >= 0)
            b = b * 16 + hexValue(static_cast<unsigned char>(*p_++));
        }
        if (b >= 0) textByte(static_cast<unsigned char>(b));
        break;
      }
      case '\\':
      case '{':
      case '}':
        if (state_.destination == Destination::Text) {
          textByte(c);
        } else if (state_.destination == Destination::FontTable) {
          fontName_ += static_cast<char>(c);
        }
        break;
      case '~': symbol('\xA0'); break;
      case '_': symbol('-'); break;
      case '*': state_.destination = Destination::Skip; break;
      case '\r':
      case '\n': paragraphBreak(true); break;
      case '\t': symbol('\t'); break;
      default: break;  // \- (optional hyphen), \| and \: carry no text
    }
  }

  void controlWord(Word word, bool hasParameter, int param) {
    if (state_.destination == Destination::FontTable || state_.destination == Destination::ColourTable)
      endTruncatedTable(word);
    trackFormatRun(word);
    const bool on = !hasParameter || param != 0;
    RtfCharFormat& f = state_.format;
    switch (word) {
      case Word::Unknown:
      case Word::Rtf: break;
      case Word::Ansi: documentCodePage_ = kCodePageWindows1252; refreshCodePage(); break;
      case Word::AnsiCpg: documentCodePage_ = param > 0 ? param : kCodePageWindows1252; refreshCodePage(); break;
      case Word::Mac: documentCodePage_ = 10000; refreshCodePage(); break;
      case Word::Pc: documentCodePage_ = 437; refreshCodePage(); break;
      case Word::Pca: documentCodePage_ = 850; refreshCodePage(); break;
      case Word::Deff: forgetFormatRuns(); defaultFont_ = param; if (f.font < 0) { f.font = param; refreshCodePage(); } break;
      case Word::FontTable: state_.destination = Destination::FontTable; break;
      case Word::ColourTable:
        state_.destination = Destination::ColourTable;
        forgetFormatRuns();
        colours_.clear();
        colour_ = {};
        break;
      case Word::FontCharset:
        if (state_.destination == Destination::FontTable && fontCodePage_ == 0) fontCharsetPage_ = codePageOfCharset(param);
        break;
      case Word::CodePage:
        if (state_.destination == Destination::FontTable) fontCodePage_ = param;
        break;
      case Word::FamilyModern:
        if (state_.destination == Destination::FontTable) fontFixedPitch_ = true;
        break;
      case Word::Red: colour_.rgb = (colour_.rgb & 0xFFFF00u) | static_cast<std::uint32_t>(param & 0xFF); colour_.given = true; break;
      case Word::Green: colour_.rgb = (colour_.rgb & 0xFF00FFu) | (static_cast<std::uint32_t>(param & 0xFF) << 8); colour_.given = true; break;
      case Word::Blue: colour_.rgb = (colour_.rgb & 0x00FFFFu) | (static_cast<std::uint32_t>(param & 0xFF) << 16); colour_.given = true; break;
      case Word::SkipDestination: state_.destination = Destination::Skip; break;
      case Word::Plain:
        f = RtfCharFormat{};
        f.font = defaultFont_;
        refreshCodePage();
        formatDirty_ = true;
        break;
      case Word::Font:
        if (state_.destination == Destination::FontTable) {
          commitFont();
          fontNumber_ = param;
        } else {
          f.font = param;
          refreshCodePage();
          formatDirty_ = true;
        }
        break;
      case Word::FontSize:
        f.halfPoints = param <= 0 ? kDefaultHalfPoints : std::clamp(param, kMinHalfPoints, kMaxHalfPoints);
        formatDirty_ = true;
        break;
      case Word::ColourFore:
        f.colour = (param >= 0 && static_cast<std::size_t>(param) < colours_.size()) ? colours_[param] : kAutoColour;
        formatDirty_ = true;
        break;
      case Word::Bold: f.bold = on; formatDirty_ = true; break;
      case Word::Italic: f.italic = on; formatDirty_ = true; break;
      case Word::Underline:
      case Word::UnderlineOther: f.underline = on; formatDirty_ = true; break;
      case Word::UnderlineNone: f.underline = false; formatDirty_ = true; break;
      case Word::Strike:
      case Word::StrikeDouble: f.strike = on; formatDirty_ = true; break;
      case Word::Pard: state_.indentTwips = 0; break;
      case Word::LeftIndent: state_.indentTwips = param; break;
      case Word::Par:
      case Word::Sect: paragraphBreak(true); break;
      case Word::Line: paragraphBreak(false); break;
      case Word::Row: {
        const Destination was = state_.destination;
        if (was == Destination::NestedRowProperties) state_.destination = Destination::Text;
        if (state_.destination == Destination::Text && !doc_.text.empty() && doc_.text.back() == '\t') doc_.text.pop_back();
        paragraphBreak(true);
        state_.destination = was;
        break;
      }
      case Word::NestedTableProperties: state_.destination = Destination::NestedRowProperties; break;
      case Word::Tab:
      case Word::Cell: symbol('\t'); break;
      case Word::Unicode:
        if (hasParameter) unicodeChar(param);
        break;
      case Word::UnicodeSkip: state_.unicodeSkip = std::clamp(param, 0, 16); break;
      case Word::Bin: {
        const auto left = static_cast<unsigned long long>(end_ - p_);
        p_ += static_cast<std::ptrdiff_t>(std::min<unsigned long long>(param > 0 ? param : 0, left));
        break;
      }
      case Word::EmDash: symbol('\x97'); break;
      case Word::EnDash: symbol('\x96'); break;
      case Word::Bullet: symbol('\x95'); break;
      case Word::LQuote: symbol('\x91'); break;
      case Word::RQuote: symbol('\x92'); break;
      case Word::LDblQuote: symbol('\x93'); break;
      case Word::RDblQuote: symbol('\x94'); break;
      case Word::Space: symbol(' '); break;
    }
  }

  // ---- repeated attribute strings --------------------------------------------------------
  // The colorizer writes the same few attribute strings (\f0\fs20\cf1\b\i0\strike0\ul0 ) on
  // every line. A run of control words that sets every character format field, or starts with
  // \plain, always gives the same format; once seen, the same bytes are not parsed again.
  static constexpr unsigned kAllFields = 127;

  static unsigned fieldsOf(Word word) {
    switch (word) {
      case Word::Plain: return kAllFields;
      case Word::Font: return 1;
      case Word::FontSize: return 2;
      case Word::ColourFore: return 4;
      case Word::Bold: return 8;
      case Word::Italic: return 16;
      case Word::Underline: case Word::UnderlineNone: case Word::UnderlineOther: return 32;
      case Word::Strike: case Word::StrikeDouble: return 64;
      default: return 0;
    }
  }

  void trackFormatRun(Word word) {
    const unsigned fields = state_.destination == Destination::Text ? fieldsOf(word) : 0;
    if (fields == 0) {
      endFormatRun(wordStart_);  // this word is not part of the run
      return;
    }
    if (!runStart_) {
      runStart_ = wordStart_;
      runFields_ = 0;
    }
    runFields_ |= fields;
  }

  // The run of format words (if any) ends at `end`, where the next token starts.
  void endFormatRun(const char* end) {
    if (!runStart_) return;
    const std::size_t length = static_cast<std::size_t>(end - runStart_);
    if (runFields_ == kAllFields && length >= 8 && runStart_[length - 1] == ' ' && unicodeSkipLeft_ == 0) {
      Memo& m = memos_[nextMemo_++ % memos_.size()];
      m.bytes = runStart_;
      m.length = length;
      std::memcpy(&m.prefix, runStart_, 8);
      m.format = state_.format;
    }
    runStart_ = nullptr;
  }

  bool replayFormatRun() {
    if (state_.destination != Destination::Text || unicodeSkipLeft_ != 0 || runStart_ || end_ - p_ < 8) return false;
    std::uint64_t prefix;
    std::memcpy(&prefix, p_, 8);
    for (const Memo& m : memos_) {
      if (m.length == 0 || m.prefix != prefix || m.length > static_cast<std::size_t>(end_ - p_)) continue;
      if (std::memcmp(p_, m.bytes, m.length) != 0) continue;
      state_.format = m.format;
      refreshCodePage();
      formatDirty_ = true;
      p_ += m.length;
      return true;
    }
    return false;
  }

  void finish() {
    commitFont();
    if (lastBreakEnd_ != 0 && lastBreakEnd_ == doc_.text.size()) {
      // The last paragraph mark closes the document; it does not open an empty last line.
      doc_.text.resize(doc_.text.size() - 2);
    }
    while (!doc_.runs.empty() && doc_.runs.back().start >= doc_.text.size()) doc_.runs.pop_back();
  }
};

}  // namespace

RtfDocument readRtf(std::string_view rtf) {
  // A file that is not rich text at all (a plain program given a .RTF name) loads as it is.
  const std::size_t first = rtf.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos || rtf.substr(first, 5) != "{\\rtf") {
    RtfDocument doc;
    doc.text = std::string(rtf);
    if (!doc.text.empty()) {
      doc.formats.push_back(RtfCharFormat{});
      doc.runs.push_back({0, 0});
    }
    return doc;
  }
  return Reader(rtf.substr(first)).run();
}

RtfDocument readRtfFile(const std::string& path) {
  const SourceFile file(path);
  return readRtf(file.bytes());
}

}  // namespace lathwick
