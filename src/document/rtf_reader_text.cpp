// The rich-text reader's ends: where its bytes come from (all at once, or a buffer refilled from
// a source) and where its text goes (to the sink, a piece at a time), with the characters that
// take a code page or a Unicode value and the interning of formats.
#include <algorithm>

#include "document/rtf_reader_state.h"

namespace lathwick::detail {

RtfReaderState::RtfReaderState(std::string_view rtf, RtfTextSink& sink)
    : p_(rtf.data()), end_(rtf.data() + rtf.size()), sink_(sink) {
  text_.reserve(std::min(rtf.size(), kDeliverAt + 16));  // the text is never longer than its source
  stack_.reserve(64);
}

RtfReaderState::RtfReaderState(RtfByteSource& source, std::size_t bufferBytes, RtfTextSink& sink)
    : p_(nullptr), end_(nullptr), source_(&source), sourceDone_(false), sink_(sink) {
  buffer_.resize(std::max(bufferBytes, 4 * kLookahead));
  p_ = end_ = buffer_.data();
  // Room for one hand-over of text, or for all the text of a file that fits the buffer.
  text_.reserve(std::min(buffer_.size(), kDeliverAt) + 16);
  stack_.reserve(64);
}

bool RtfReaderState::refill() {
  if (!source_ || sourceDone_) return false;
  // Keep what a run of format words in progress needs, unless it grew too long to remember.
  const char* keep = p_;
  if (runStart_ && static_cast<std::size_t>(p_ - runStart_) <= kMaxMemoLength) {
    keep = runStart_;
  } else {
    runStart_ = nullptr;
  }
  if (wordStart_ && wordStart_ < keep) wordStart_ = nullptr;
  char* base = buffer_.data();
  const std::size_t kept = static_cast<std::size_t>(end_ - keep);
  std::memmove(base, keep, kept);
  const std::ptrdiff_t shift = keep - base;
  p_ -= shift;
  if (runStart_) runStart_ -= shift;
  if (wordStart_) wordStart_ -= shift;
  std::size_t filled = kept;
  bool grew = false;
  while (filled < buffer_.size()) {
    const std::size_t got = source_->read(base + filled, buffer_.size() - filled);
    if (got == 0) {
      sourceDone_ = true;
      break;
    }
    filled += got;
    grew = true;
  }
  end_ = base + filled;
  return grew;
}

void RtfReaderState::deliver(bool everything) {
  const std::size_t count = everything ? text_.size() : (text_.size() > 2 ? text_.size() - 2 : 0);
  if (count == 0) return;
  // The runs that start inside the piece go with it; the one in force at its end also goes on
  // into what is kept.
  std::size_t within = 0;
  while (within < runs_.size() && runs_[within].start < count) ++within;
  sink_.styledText(std::string_view(text_.data(), count), std::span<const RtfRun>(runs_.data(), within), table_);
  text_.erase(0, count);
  delivered_ += count;
  if (within == 0) return;
  std::size_t keepFrom = within - 1;  // the run in force at `count`, unless one starts there
  if (everything || (within < runs_.size() && runs_[within].start == count)) keepFrom = within;
  runs_.erase(runs_.begin(), runs_.begin() + static_cast<std::ptrdiff_t>(keepFrom));
  for (RtfRun& r : runs_) r.start = r.start > count ? r.start - count : 0;
}

void RtfReaderState::textByte(unsigned char b) {
  if (state_.destination != RtfDestination::Text) {
    if (state_.destination == RtfDestination::FontTable && b >= 0x20) fontName_ += static_cast<char>(b);
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

void RtfReaderState::unicodeChar(long value) {
  if (state_.destination == RtfDestination::Text) {
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

void RtfReaderState::newFormat() {
  if (!indentKnown_) {
    indentKnown_ = true;
    sink_.indent(state_.indentTwips);
  }
  formatDirty_ = false;
  std::uint32_t index;
  if (replayed_) {  // a remembered attribute string: its format's place is known after the first time
    if (replayed_->formatIndex == kUnknownIndex) replayed_->formatIndex = formatIndex(state_.format);
    index = replayed_->formatIndex;
  } else {
    index = formatIndex(state_.format);
  }
  if (!runs_.empty() && runs_.back().format == index) return;
  if (!runs_.empty() && runs_.back().start == text_.size()) {
    runs_.back().format = index;
    if (runs_.size() > 1 && runs_[runs_.size() - 2].format == index) runs_.pop_back();
    return;
  }
  runs_.push_back({text_.size(), index});
}

std::uint32_t RtfReaderState::formatIndex(const RtfCharFormat& f) {
  const std::uint64_t key = (static_cast<std::uint64_t>(static_cast<std::uint16_t>(f.font)) << 48) |
                            (static_cast<std::uint64_t>(static_cast<std::uint16_t>(f.halfPoints)) << 32) |
                            (static_cast<std::uint64_t>(f.colour == kAutoColour ? 0x1000000u : f.colour) << 4) |
                            (f.bold ? 1u : 0u) | (f.italic ? 2u : 0u) | (f.underline ? 4u : 0u) |
                            (f.strike ? 8u : 0u);
  // A document switches among a few formats over and over: the last ones used are looked at first.
  for (const RecentFormat& r : recentFormats_)
    if (r.key == key) return r.index;
  auto [it, inserted] = formatIndexes_.try_emplace(key, static_cast<std::uint32_t>(table_.formats.size()));
  if (inserted) table_.formats.push_back(f);
  recentFormats_[nextRecent_++ % recentFormats_.size()] = {key, it->second};
  return it->second;
}

}  // namespace lathwick::detail
