#pragma once
// The rich-text reader's working state, shared by the files that implement it: rtf_reader.cpp
// (the pass over the bytes: groups, text, control words, repeated attribute strings) and
// rtf_reader_tables.cpp (the font and colour tables). Only those two files include this header;
// everyone else reads rich text through readRtf (document/rtf_reader.h).
#include <array>
#include <climits>
#include <cstddef>
#include <cstdint>
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

// What the reader knows part-way through a file: the position, the document built so far, the
// group stack, the tables and the remembered attribute strings. The per-byte pass that drives it
// (class Reader in rtf_reader.cpp) stays private to that file, so the compiler is free to fold it
// into one loop; the table members here run rarely and live in rtf_reader_tables.cpp.
class RtfReaderState {
 protected:
  explicit RtfReaderState(std::string_view rtf) : p_(rtf.data()), end_(rtf.data() + rtf.size()) {
    doc_.text.reserve(rtf.size());  // the text is never longer than its source
    stack_.reserve(64);
  }

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

  // A remembered attribute string is only valid for the tables it was read with.
  void forgetFormatRuns() {
    for (Memo& m : memos_) m.length = 0;
  }

  struct Memo {
    const char* bytes = nullptr;
    std::size_t length = 0;  // 0: empty
    std::uint64_t prefix = 0;
    RtfCharFormat format;
  };

  struct PendingColour {
    std::uint32_t rgb = 0;
    bool given = false;
  };

  const char* p_;
  const char* end_;
  RtfDocument doc_;
  RtfGroupState state_;
  std::vector<RtfGroupState> stack_;
  std::size_t overflowDepth_ = 0;
  int unicodeSkipLeft_ = 0;
  bool pendingLead_ = false;
  bool formatDirty_ = true;
  bool indentKnown_ = false;
  std::size_t lastBreakEnd_ = 0;
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
  std::array<Memo, 8> memos_{};
  std::size_t nextMemo_ = 0;
  // interned formats
  std::unordered_map<std::uint64_t, std::uint32_t> formatIndexes_;
  std::uint64_t lastKey_ = ~0ull;
  std::uint32_t lastIndex_ = 0;
};

}  // namespace lathwick::detail
