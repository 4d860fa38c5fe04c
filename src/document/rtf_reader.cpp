// The rich-text reader. One pass over the bytes with a stack of group states; text goes to the
// sink in pieces, formats are interned as they first carry text. Plain text between control
// words is copied in blocks, so the colorizer's large output loads at memory speed.
// The reader's state is declared in rtf_reader_state.h; what the control words do is in
// rtf_reader_words.cpp, the font and colour tables in rtf_reader_tables.cpp, the input buffer
// and the hand-over of the text in rtf_reader_text.cpp. The per-byte pass stays here, private to
// this file, so the compiler can fold it into one loop.
#include "document/rtf_reader.h"

#include <algorithm>
#include <climits>
#include <cstring>

#include "document/rtf_reader_state.h"
#include "document/source_file.h"

namespace lathwick {
namespace {

using rtf::Word;
using Destination = detail::RtfDestination;

constexpr std::size_t kMaxDepth = 1024;  // deeper groups share their parent's state
constexpr int kMaxControlWordLength = 32;
constexpr std::size_t kFileBuffer = 1 << 20;

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
  Reader(std::string_view rtf, RtfTextSink& sink) : RtfReaderState(rtf, sink) {}
  Reader(detail::RtfByteSource& source, std::size_t bufferBytes, RtfTextSink& sink)
      : RtfReaderState(source, bufferBytes, sink) {}

  RtfFormatTable run() {
    while (true) {
      keepAhead();
      if (p_ == end_) break;
      if (binaryLeft_ > 0) {
        skipBinary();
        continue;
      }
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
      deliverWhenLarge();
    }
    finish();
    return std::move(table_);
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
    replayed_ = nullptr;
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
      colourTableBytes();
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
        appendText(start, p_);
        return;
      }
    }
    const unsigned char c = static_cast<unsigned char>(*p_++);
    if (c < 0x20 && c != '\t') return;  // line ends and stray control bytes are not text
    textByte(c);
  }

  // Only ";" separates colour entries. Anything else means the table was cut short (a scheme
  // header longer than its field): what follows is the document.
  void colourTableBytes() {
    while (p_ < end_ && (*p_ == ';' || *p_ == ' ' || *p_ == '\r' || *p_ == '\n')) {
      if (*p_ == ';') commitColour();
      ++p_;
    }
    if (p_ < end_ && *p_ != '\\' && *p_ != '{' && *p_ != '}') state_.destination = Destination::Text;
  }

  void skipBinary() {
    const std::size_t n = std::min(binaryLeft_, static_cast<std::size_t>(end_ - p_));
    p_ += n;
    binaryLeft_ -= n;
  }

  // ---- control words and symbols ---------------------------------------------------------
  void controlSequence() {
    if (atEnd()) return;
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
    while (!atEnd() && isLetter(static_cast<unsigned char>(*p_))) {
      if (length < 8) packed |= static_cast<std::uint64_t>(static_cast<unsigned char>(*p_)) << (8 * length);
      if (length < kMaxControlWordLength) name[length++] = *p_;
      ++p_;
    }
    bool hasParameter = false;
    long long value = 0;
    bool negative = false;
    if (available(2) && *p_ == '-' && isDigit(static_cast<unsigned char>(p_[1]))) {
      negative = true;
      ++p_;
    }
    while (!atEnd() && isDigit(static_cast<unsigned char>(*p_))) {
      hasParameter = true;
      if (value < INT_MAX) value = value * 10 + (*p_ - '0');  // absurd numbers saturate
      ++p_;
    }
    if (!atEnd() && *p_ == ' ') ++p_;  // the delimiting blank belongs to the control word
    value = std::min<long long>(value, INT_MAX);
    const int param = static_cast<int>(negative ? -value : value);
    const Word word = length <= 8 ? rtf::lookupPackedWord(packed) : rtf::lookupWord(std::string_view(name, length));
    controlWord(word, hasParameter, param);
  }

  // At least n bytes at the position (after trying for more).
  bool available(std::size_t n) {
    while (static_cast<std::size_t>(end_ - p_) < n)
      if (!refill()) return false;
    return true;
  }

  int hexDigit() {
    if (atEnd()) return -1;
    const int v = hexValue(static_cast<unsigned char>(*p_));
    if (v >= 0) ++p_;
    return v;
  }

  void controlSymbol(unsigned char c) {
    switch (c) {
      case '\'': {
        int b = hexDigit();
        if (b >= 0) {
          const int low = hexDigit();
          if (low >= 0) b = b * 16 + low;
          textByte(static_cast<unsigned char>(b));
        }
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

  // ---- repeated attribute strings --------------------------------------------------------
  bool replayFormatRun() {
    if (state_.destination != Destination::Text || unicodeSkipLeft_ != 0 || runStart_ ||
        static_cast<std::size_t>(end_ - p_) < kMemoKeyLength)
      return false;
    std::uint64_t head, next;
    std::memcpy(&head, p_, 8);
    std::memcpy(&next, p_ + 8, 8);
    Memo& m = memos_[memoSlot(head, next)];
    if (m.length == 0 || m.head != head || m.next != next || m.length > static_cast<std::size_t>(end_ - p_) ||
        std::memcmp(p_ + kMemoKeyLength, m.bytes.data() + kMemoKeyLength, m.length - kMemoKeyLength) != 0)
      return false;
    state_.format = m.format;
    replayed_ = &m;
    refreshCodePage();
    formatDirty_ = true;
    p_ += m.length;
    return true;
  }

  void finish() {
    commitFont();
    if (lastBreakEnd_ != 0 && lastBreakEnd_ == textLength()) {
      // The last paragraph mark closes the document; it does not open an empty last line.
      text_.resize(text_.size() - 2);
    }
    while (!runs_.empty() && runs_.back().start >= text_.size()) runs_.pop_back();
    deliver(true);
  }
};

// The whole document in memory: the sink for readRtf's own result.
class DocumentCollector : public RtfTextSink {
 public:
  void indent(int twips) override { doc.indentTwips = twips; }
  void styledText(std::string_view text, std::span<const RtfRun> runs, const RtfFormatTable&) override {
    const std::size_t base = doc.text.size();
    for (const RtfRun& r : runs) {
      if (!doc.runs.empty() && doc.runs.back().format == r.format) continue;  // goes on from the last piece
      doc.runs.push_back({base + r.start, r.format});
    }
    doc.text.append(text);
  }
  RtfDocument take(RtfFormatTable table) {
    static_cast<RtfFormatTable&>(doc) = std::move(table);
    return std::move(doc);
  }
  RtfDocument doc;
};

// A file that is not rich text at all (a plain program given a .RTF name) loads as it is.
RtfFormatTable plainText(std::string_view bytes, RtfTextSink& sink, RtfFormatTable table) {
  if (bytes.empty()) return table;
  if (table.formats.empty()) table.formats.push_back(RtfCharFormat{});
  const RtfRun whole[] = {{0, 0}};
  sink.styledText(bytes, whole, table);
  return table;
}

bool blank(char c) { return c == ' ' || c == '\t' || c == '\r' || c == '\n'; }

// The bytes looked at first, then the rest of the file.
class HeadThenFile : public detail::RtfByteSource {
 public:
  HeadThenFile(std::string_view head, SourceFile& file) : head_(head), file_(file) {}
  std::size_t read(char* into, std::size_t capacity) override {
    if (head_.empty()) return file_.read(into, capacity);
    const std::size_t n = std::min(capacity, head_.size());
    std::memcpy(into, head_.data(), n);
    head_.remove_prefix(n);
    return n;
  }

 private:
  std::string_view head_;
  SourceFile& file_;
};

// A read buffer no larger than the file needs (at least a few kilobytes), up to `most`: a small
// file must not cost a megabyte of cleared memory.
std::size_t bufferFor(const SourceFile& file, std::size_t most) {
  constexpr std::uint64_t kLeast = 4096;
  return static_cast<std::size_t>(std::min<std::uint64_t>(most, std::max(kLeast, file.size() + 1)));
}

}  // namespace

RtfFormatTable readRtf(std::string_view rtf, RtfTextSink& sink) {
  const std::size_t first = rtf.find_first_not_of(" \t\r\n");
  if (first == std::string_view::npos || rtf.substr(first, 5) != "{\\rtf") return plainText(rtf, sink, {});
  return Reader(rtf.substr(first), sink).run();
}

RtfFormatTable readRtfFile(const std::string& path, RtfTextSink& sink, std::size_t bufferBytes) {
  SourceFile file(path);
  // Enough of the start to tell rich text from plain: the blanks before it and five bytes more.
  std::string head;
  std::size_t first = std::string::npos;
  while (first == std::string::npos || head.size() < first + 5) {
    const std::size_t had = head.size();
    head.resize(had + 4096);
    head.resize(had + file.read(head.data() + had, 4096));
    if (head.size() == had) break;
    if (first == std::string::npos) {
      const auto it = std::find_if(head.begin() + static_cast<std::ptrdiff_t>(had), head.end(), [](char c) { return !blank(c); });
      if (it != head.end()) first = static_cast<std::size_t>(it - head.begin());
    }
  }
  if (first == std::string::npos || std::string_view(head).substr(first, 5) != "{\\rtf") {
    RtfFormatTable table = plainText(head, sink, {});
    std::string piece(bufferFor(file, kFileBuffer), '\0');
    while (const std::size_t got = file.read(piece.data(), piece.size()))
      table = plainText(std::string_view(piece.data(), got), sink, std::move(table));
    return table;
  }
  HeadThenFile source(std::string_view(head).substr(first), file);
  return Reader(source, bufferFor(file, bufferBytes), sink).run();
}

RtfFormatTable readRtfFile(const std::string& path, RtfTextSink& sink) { return readRtfFile(path, sink, kFileBuffer); }

RtfDocument readRtf(std::string_view rtf) {
  DocumentCollector collector;
  RtfFormatTable table = readRtf(rtf, collector);
  return collector.take(std::move(table));
}

RtfDocument readRtfFile(const std::string& path) {
  DocumentCollector collector;
  RtfFormatTable table = readRtfFile(path, collector);
  return collector.take(std::move(table));
}

}  // namespace lathwick
