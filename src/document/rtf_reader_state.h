#pragma once
// The rich-text reader's working state, shared by the files that implement it: rtf_reader.cpp
// (the pass over the bytes: groups, text, control symbols, repeated attribute strings),
// rtf_reader_words.cpp (what each control word does), rtf_reader_tables.cpp (the font and
// colour tables) and rtf_reader_io.cpp (the input buffer and the hand-over of the text). Only
// those files include this header; everyone else reads rich text through document/rtf_reader.h.
#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "document/rtf_code_pages.h"
#include "document/rtf_control_words.h"
#include "document/rtf_document.h"

namespace lathwick::detail {

// NestedRowProperties is skipped like any other destination, except that the end of a nested
// table row it holds (\nestrow) still ends a line of the text.
enum class RtfDestination : unsigned char { Text, FontTable, ColourTable, Skip, NestedRowProperties };

struct RtfGroupState {
  RtfCharFormat format;
  RtfDestination destination = RtfDestination::Text;
  int unicodeSkip = 1;  // \ucN: fallback characters after each \uN
  int codePage = kCodePageWindows1252;
  int indentTwips = 0;
};

// Where a streamed read gets its bytes.
class RtfByteSource {
 public:
  virtual ~RtfByteSource() = default;
  // Up to `capacity` bytes; 0 at the end of the input.
  virtual std::size_t read(char* into, std::size_t capacity) = 0;
};

// The longest run of format words the reader remembers, and the bytes it keeps ahead of its
// position while more input is to come (so that a remembered run can be compared in place).
inline constexpr std::size_t kMaxMemoLength = 128;
inline constexpr std::size_t kLookahead = kMaxMemoLength;
// Text is handed to the sink in pieces of about this size.
inline constexpr std::size_t kDeliverAt = 1 << 18;
// The character format fields a run of format words may set, one bit each (font, size, colour,
// bold, italic, underline, strikeout).
inline constexpr unsigned kAllFormatFields = 127;

// What the reader knows part-way through a file: the position, the text not yet handed on, the
// group stack, the tables and the remembered attribute strings. The per-byte pass that drives
// it (class Reader in rtf_reader.cpp) stays private to that file, so the compiler is free to
// fold it into one loop; the text helpers it calls for every piece of text are defined here.
class RtfReaderState {
  friend struct RtfWordActions;  // what each control word does (rtf_reader_words.cpp)

 protected:
  // All the bytes at once.
  RtfReaderState(std::string_view rtf, RtfTextSink& sink);
  // Bytes from a source, read into a buffer of `bufferBytes`.
  RtfReaderState(RtfByteSource& source, std::size_t bufferBytes, RtfTextSink& sink);

  // ---- input (rtf_reader_io.cpp) ---------------------------------------------------------
  // Brings more bytes when the source has them; the bytes from the start of the run of format
  // words in progress are kept. False when nothing more came.
  bool refill();
  // True when no byte is left at the position (after trying for more).
  bool atEnd() { return p_ == end_ && !refill(); }
  // Keeps the lookahead filled while more input is to come.
  void keepAhead() {
    if (static_cast<std::size_t>(end_ - p_) < kLookahead && source_ && !sourceDone_) refill();
  }

  // ---- output (rtf_reader_io.cpp) --------------------------------------------------------
  // Hands the text read so far to the sink, all but its last two characters (a final paragraph
  // mark or a cell's tab may still be taken back), or everything at the end.
  void deliver(bool everything);
  void deliverWhenLarge() {
    if (text_.size() >= kDeliverAt) deliver(false);
  }
  std::size_t textLength() const { return delivered_ + text_.size(); }

  // ---- text ------------------------------------------------------------------------------
  void appendText(const char* from, const char* to) {
    beginText();
    text_.append(from, to);
  }
  void put(char c) {
    beginText();
    text_.push_back(c);
  }
  // A character written by a control word (tab, dash, quote...): it stands in for the
  // fallback characters after \uN too.
  void symbol(char c) {
    if (state_.destination != RtfDestination::Text) return;
    if (unicodeSkipLeft_ > 0) {
      --unicodeSkipLeft_;
      return;
    }
    put(c);
  }
  void paragraphBreak(bool canBeFinal) {
    if (state_.destination != RtfDestination::Text) return;
    unicodeSkipLeft_ = 0;
    pendingLead_ = false;
    beginText();
    text_ += "\r\n";
    lastBreakEnd_ = canBeFinal ? textLength() : 0;
  }
  // One character of text in the current code page (from the source or a \'hh escape).
  void textByte(unsigned char b);
  void unicodeChar(long value);

  // Starts a new run when the format changed since the last text.
  void beginText() {
    if (!formatDirty_ && !runs_.empty()) return;
    newFormat();
  }
  void newFormat();
  std::uint32_t formatIndex(const RtfCharFormat& f);

  // ---- control words (rtf_reader_words.cpp) ----------------------------------------------
  void controlWord(rtf::Word word, bool hasParameter, int param);

  // ---- tables (rtf_reader_tables.cpp) ----------------------------------------------------
  // Text inside the font table (names and entry separators).
  void tableText(const char* from, const char* to);
  // Words of the document body found inside the font or colour table: the table was cut short
  // (a scheme header longer than its field), so the table ends here and the body begins.
  void endTruncatedTable(rtf::Word word);
  void commitFont();
  void commitColour();

  // Called on every format change, so it is defined here where the pass can fold it in.
  void refreshCodePage() {
    const int font = state_.format.font;
    int cp = 0;
    if (font >= 0 && static_cast<std::size_t>(font) < fontPages_.size()) cp = fontPages_[font];
    state_.codePage = cp != 0 ? cp : documentCodePage_;
  }

  // ---- repeated attribute strings --------------------------------------------------------
  // The colorizer writes the same few attribute strings (\f0\fs20\cf1\b\i0\strike0\ul0 ) on
  // every line. A run of control words that sets every character format field, or starts with
  // \plain, always gives the same format; once seen, the same bytes are not parsed again. The
  // remembered strings are found by their first 16 bytes (the first 8 are alike in all of them).
  static constexpr std::size_t kMemoKeyLength = 16;
  static std::size_t memoSlot(std::uint64_t head, std::uint64_t next) {
    return static_cast<std::size_t>(((head ^ (next * 0x9E3779B97F4A7C15ull)) * 0xC2B2AE3D27D4EB4Full) >> 57);
  }

  // A remembered attribute string is only valid for the tables it was read with.
  void forgetFormatRuns() {
    for (Memo& m : memos_) m.length = 0;
    replayed_ = nullptr;
  }
  // The run of format words (if any) ends at `end`, where the next token starts.
  void endFormatRun(const char* end) {
    if (!runStart_) return;
    const std::size_t length = static_cast<std::size_t>(end - runStart_);
    if (runFields_ == kAllFormatFields && length >= kMemoKeyLength && length <= kMaxMemoLength &&
        runStart_[length - 1] == ' ' && unicodeSkipLeft_ == 0) {
      std::uint64_t head, next;
      std::memcpy(&head, runStart_, 8);
      std::memcpy(&next, runStart_ + 8, 8);
      Memo& m = memos_[memoSlot(head, next)];
      std::memcpy(m.bytes.data(), runStart_, length);
      m.length = length;
      m.head = head;
      m.next = next;
      m.format = state_.format;
      m.formatIndex = kUnknownIndex;
    }
    runStart_ = nullptr;
  }
  void trackFormatRun(rtf::Word word);

  static constexpr std::uint32_t kUnknownIndex = ~0u;
  struct Memo {
    std::array<char, kMaxMemoLength> bytes{};
    std::size_t length = 0;  // 0: empty
    std::uint64_t head = 0;  // bytes 0-7 and 8-15
    std::uint64_t next = 0;
    RtfCharFormat format;
    std::uint32_t formatIndex = kUnknownIndex;  // its place in the table, once it has carried text
  };

  struct PendingColour {
    std::uint32_t rgb = 0;
    bool given = false;
  };

  // input
  const char* p_;
  const char* end_;
  RtfByteSource* source_ = nullptr;
  bool sourceDone_ = true;
  std::vector<char> buffer_;
  std::size_t binaryLeft_ = 0;  // bytes of \binN data still to skip
  // output
  RtfTextSink& sink_;
  RtfFormatTable table_;
  std::string text_;          // read and not yet handed on
  std::vector<RtfRun> runs_;  // of text_, starts relative to it
  std::size_t delivered_ = 0;
  bool indentKnown_ = false;
  std::size_t lastBreakEnd_ = 0;  // where the last paragraph mark that may close the document ends
  // groups
  RtfGroupState state_;
  std::vector<RtfGroupState> stack_;
  std::size_t overflowDepth_ = 0;
  int unicodeSkipLeft_ = 0;
  bool pendingLead_ = false;
  bool formatDirty_ = true;
  int documentCodePage_ = kCodePageWindows1252;
  int defaultFont_ = 0;
  // font table entry being read
  int fontNumber_ = INT_MIN;
  std::string fontName_;
  int fontCodePage_ = 0;
  int fontCharsetPage_ = 0;
  bool fontFixedPitch_ = false;
  std::vector<int> fontPages_;
  // colour table
  std::vector<std::uint32_t> colours_;
  PendingColour colour_;
  // runs of format words, and the ones already seen
  const char* wordStart_ = nullptr;
  const char* runStart_ = nullptr;
  unsigned runFields_ = 0;
  std::array<Memo, 128> memos_{};  // by memoSlot()
  Memo* replayed_ = nullptr;  // the format in force is this memo's (no word has changed it since)
  // interned formats
  std::unordered_map<std::uint64_t, std::uint32_t> formatIndexes_;
  struct RecentFormat {
    std::uint64_t key = ~0ull;  // no format has this key
    std::uint32_t index = 0;
  };
  std::array<RecentFormat, 8> recentFormats_{};
  std::size_t nextRecent_ = 0;
};

}  // namespace lathwick::detail
