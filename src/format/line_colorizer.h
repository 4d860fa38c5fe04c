#pragma once
// Colours one program line at a time: marks each position with a style code (block skip, modal
// G words, X/Y/Z words, code markers, the first comment) and writes the line as rich text. The
// modal style carries from line to line. Buffers are reused, so a long run allocates nothing
// per line once they have grown.
#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "format/colorizer_codes.h"
#include "format/g_words.h"
#include "format/pass_frame.h"

namespace lathwick {

class LineColorizer {
 public:
  LineColorizer(const PassFrame& frame, ColorizeView view, std::vector<MarkerEntry> markers);

  // Appends the line's rich text (its characters interleaved with code strings, without the
  // paragraph start and line break) to out.
  void colorize(std::string_view line, std::string& out);

  int modalStyle() const { return modal_; }

 private:
  void markBlockSkipOrWords(std::string_view line);
  void markGWords();
  void markPositions();
  void markCodeTexts(std::string_view line);
  void markComment();
  bool occurs(char c) const { return present_[static_cast<unsigned char>(c)]; }
  void emit(std::string_view line, std::string& out) const;
  void emitEscaped(std::string_view line, std::string& out) const;

  // 1-based code slots 1..length+1 live at codes_[1..length+1].
  void put(std::size_t pos, std::uint8_t code) {
    if (pos >= 1 && pos < codes_.size()) codes_[pos] = code;
  }
  void endWordAt(std::size_t pos) {
    if (pos >= 1 && pos < codes_.size() && codes_[pos] == kNoCode) codes_[pos] = kEndOfWord;
  }
  void clearBetween(std::size_t from, std::size_t to) {
    for (std::size_t i = from + 1; i < to && i < codes_.size(); ++i) codes_[i] = kNoCode;
  }

  ColorizeView view_;
  CodeStrings strings_;
  std::vector<MarkerEntry> markers_;
  std::string blockSkip_;
  CommentDelimiters comment_;
  int modal_ = 3;  // "G00 Mode"

  GWordFinder finder_;
  std::string upper_;
  std::vector<std::uint8_t> codes_;
  std::array<bool, 256> present_{};  // which bytes occur in the line (as read or upper-cased)
  std::size_t scan_ = 0;  // the one scan position shared by the searches of a line
};

}  // namespace lathwick
