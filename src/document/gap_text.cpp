#include "document/gap_text.h"

#include <algorithm>
#include <cstring>

namespace lathwick {

void GapText::assign(std::string text) {
  buffer_ = std::move(text);
  gapStart_ = gapEnd_ = buffer_.size();
}

std::string GapText::substr(std::size_t pos, std::size_t count) const {
  pos = std::min(pos, size());
  count = std::min(count, size() - pos);
  std::string out;
  out.reserve(count);
  const std::size_t end = pos + count;
  if (pos < gapStart_) out.append(buffer_, pos, std::min(end, gapStart_) - pos);
  if (end > gapStart_) {
    const std::size_t from = std::max(pos, gapStart_);
    out.append(buffer_, from + gapLength(), end - from);
  }
  return out;
}

void GapText::moveGapTo(std::size_t pos) {
  char* data = buffer_.data();
  if (pos < gapStart_) {
    const std::size_t moved = gapStart_ - pos;
    std::memmove(data + gapEnd_ - moved, data + pos, moved);
    gapStart_ -= moved;
    gapEnd_ -= moved;
  } else if (pos > gapStart_) {
    const std::size_t moved = pos - gapStart_;
    std::memmove(data + gapStart_, data + gapEnd_, moved);
    gapStart_ += moved;
    gapEnd_ += moved;
  }
}

// Grows the gap (kept at its place) to at least `needed`, with room for the edits to come.
void GapText::reserveGap(std::size_t needed) {
  if (gapLength() >= needed) return;
  const std::size_t grow = needed + std::max<std::size_t>(4096, size() / 16);
  const std::size_t tail = buffer_.size() - gapEnd_;
  buffer_.resize(buffer_.size() + grow);
  char* data = buffer_.data();
  std::memmove(data + gapEnd_ + grow, data + gapEnd_, tail);
  gapEnd_ += grow;
}

void GapText::replace(std::size_t pos, std::size_t count, std::string_view text) {
  pos = std::min(pos, size());
  count = std::min(count, size() - pos);
  moveGapTo(pos);
  gapEnd_ += count;  // the removed characters join the gap
  reserveGap(text.size());
  std::memcpy(buffer_.data() + gapStart_, text.data(), text.size());
  gapStart_ += text.size();
}

}  // namespace lathwick
