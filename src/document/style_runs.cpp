#include "document/style_runs.h"

#include <algorithm>

namespace lathwick {

void StyleRuns::clear() {
  bytes_.clear();
  bytes_.shrink_to_fit();
  marks_.clear();
  marks_.shrink_to_fit();
  packedRuns_ = packedLength_ = openLength_ = length_ = 0;
  openStyle_ = 0;
}

std::size_t StyleRuns::runCount() const { return packedRuns_ + (openLength_ > 0 ? 1 : 0); }

void StyleRuns::append(std::size_t length, unsigned char style) {
  if (length == 0) return;
  length_ += length;
  if (openLength_ > 0 && style == openStyle_) {
    openLength_ += length;
    return;
  }
  if (openLength_ > 0) pack(openLength_, openStyle_);
  openStyle_ = style;
  openLength_ = length;
}

void StyleRuns::pack(std::size_t length, unsigned char style) {
  if (packedRuns_ % kMarkEvery == 0) marks_.push_back({packedLength_, bytes_.size()});
  bytes_.push_back(style);
  std::size_t rest = length;
  while (rest >= 0x80) {
    bytes_.push_back(static_cast<unsigned char>(rest | 0x80));
    rest >>= 7;
  }
  bytes_.push_back(static_cast<unsigned char>(rest));
  ++packedRuns_;
  packedLength_ += length;
}

StyleRuns::Reader::Reader(const StyleRuns& runs, std::size_t from, std::size_t count)
    : runs_(runs), from_(std::min(from, runs.length_)), end_(std::min(from_ + std::min(count, runs.length_), runs.length_)) {
  // Start at the last mark at or before `from`.
  const auto& marks = runs.marks_;
  auto it = std::upper_bound(marks.begin(), marks.end(), from_,
                             [](std::size_t value, const Mark& m) { return value < m.position; });
  if (it != marks.begin()) {
    --it;
    offset_ = it->offset;
    position_ = it->position;
  }
}

std::span<const StyleRun> StyleRuns::Reader::next() {
  std::size_t n = 0;
  const std::vector<unsigned char>& bytes = runs_.bytes_;
  while (n < batch_.size() && position_ < end_) {
    std::size_t length = 0;
    unsigned char style = 0;
    if (offset_ < bytes.size()) {
      style = bytes[offset_++];
      for (int shift = 0;; shift += 7) {
        const unsigned char b = bytes[offset_++];
        length |= static_cast<std::size_t>(b & 0x7F) << shift;
        if (b < 0x80) break;
      }
    } else if (!lastDone_ && runs_.openLength_ > 0) {
      lastDone_ = true;
      style = runs_.openStyle_;
      length = runs_.openLength_;
    } else {
      break;
    }
    const std::size_t start = std::max(position_, from_);
    position_ += length;
    if (position_ <= from_) continue;
    batch_[n++] = {std::min(position_, end_) - start, style};
  }
  return {batch_.data(), n};
}

std::span<const StyleRun> CharacterStyleRuns::next() {
  std::size_t n = 0;
  while (n < batch_.size() && at_ < styles_.size()) {
    const char style = styles_[at_];
    std::size_t end = at_ + 1;
    while (end < styles_.size() && styles_[end] == style) ++end;
    batch_[n++] = {end - at_, static_cast<unsigned char>(style)};
    at_ = end;
  }
  return {batch_.data(), n};
}

}  // namespace lathwick
