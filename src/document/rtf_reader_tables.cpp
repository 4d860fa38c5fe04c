// The font and colour tables of a rich-text file, as the reader meets them. They are read once,
// at the top of the file, so they live apart from the per-byte pass in rtf_reader.cpp.
#include <climits>
#include <string>

#include "document/rtf_reader_state.h"

namespace lathwick::detail {

using rtf::Word;

void RtfReaderState::tableText(const char* from, const char* to) {
  if (state_.destination != RtfDestination::FontTable) return;
  for (const char* q = from; q < to; ++q) {
    if (*q == ';') {
      commitFont();
    } else if (static_cast<unsigned char>(*q) >= 0x20) {
      fontName_ += *q;
    }
  }
}

void RtfReaderState::endTruncatedTable(Word word) {
  switch (word) {
    case Word::Par: case Word::Pard: case Word::Plain: case Word::LeftIndent: case Word::FontSize:
    case Word::ColourFore: case Word::Bold: case Word::Italic: case Word::Underline:
    case Word::UnderlineNone: case Word::Strike: case Word::Line: case Word::Tab:
      break;
    case Word::Font:
      if (state_.destination == RtfDestination::ColourTable) break;
      return;
    default:
      return;
  }
  if (state_.destination == RtfDestination::FontTable) commitFont();
  state_.destination = RtfDestination::Text;
}

void RtfReaderState::commitFont() {
  if (fontNumber_ != INT_MIN) {
    forgetFormatRuns();
    std::string name = fontName_;
    const auto first = name.find_first_not_of(' ');
    name = first == std::string::npos ? std::string() : name.substr(first);
    while (!name.empty() && name.back() == ' ') name.pop_back();
    const int cp = fontCodePage_ != 0 ? fontCodePage_ : fontCharsetPage_;
    if (!name.empty() || table_.fonts.count(fontNumber_) == 0) table_.fonts[fontNumber_] = RtfFont{name, cp, fontFixedPitch_};
    if (fontNumber_ >= 0 && fontNumber_ < 4096) {
      if (fontPages_.size() <= static_cast<std::size_t>(fontNumber_)) fontPages_.resize(fontNumber_ + 1, 0);
      fontPages_[fontNumber_] = cp;
    }
  }
  fontNumber_ = INT_MIN;
  fontName_.clear();
  fontCodePage_ = 0;
  fontCharsetPage_ = 0;
  fontFixedPitch_ = false;
}

void RtfReaderState::commitColour() {
  forgetFormatRuns();
  colours_.push_back(colour_.given ? colour_.rgb : kAutoColour);
  colour_ = {};
}

}  // namespace lathwick::detail
