#include "document/style_pieces.h"

#include <algorithm>

namespace lathwick {

void StylePieces::reset(std::size_t length) {
  pieces_.clear();
  if (length > 0) pieces_.push_back({true, 0, length});
}

bool StylePieces::unchanged(std::size_t length) const {
  if (length == 0) return pieces_.empty();
  return pieces_.size() == 1 && pieces_[0].loaded && pieces_[0].start == 0 && pieces_[0].length == length;
}

std::size_t StylePieces::splitAt(std::size_t position) {
  std::size_t at = 0;
  for (std::size_t i = 0; i < pieces_.size(); ++i) {
    Piece& p = pieces_[i];
    if (position == at) return i;
    if (position < at + p.length) {
      const std::size_t head = position - at;
      Piece tail{p.loaded, p.loaded ? p.start + head : 0, p.length - head};
      p.length = head;
      pieces_.insert(pieces_.begin() + static_cast<std::ptrdiff_t>(i) + 1, tail);
      return i + 1;
    }
    at += p.length;
  }
  return pieces_.size();
}

void StylePieces::erase(std::size_t position, std::size_t length) {
  if (length == 0) return;
  const std::size_t first = splitAt(position);
  const std::size_t last = splitAt(position + length);
  pieces_.erase(pieces_.begin() + static_cast<std::ptrdiff_t>(first), pieces_.begin() + static_cast<std::ptrdiff_t>(last));
}

void StylePieces::insert(std::size_t position, std::size_t length) {
  if (length == 0) return;
  const std::size_t at = splitAt(position);
  // Text typed piece by piece joins the edited piece before it.
  if (at > 0 && !pieces_[at - 1].loaded) {
    pieces_[at - 1].length += length;
    return;
  }
  pieces_.insert(pieces_.begin() + static_cast<std::ptrdiff_t>(at), Piece{false, 0, length});
}

std::vector<StylePieces::Stretch> StylePieces::stretches(std::size_t length) const {
  std::vector<Stretch> out;
  std::size_t at = 0;
  for (const Piece& p : pieces_) {
    const std::size_t n = std::min(p.length, length - std::min(at, length));
    if (n == 0) break;
    out.push_back({p.loaded, p.loaded ? p.start : 0, at, n});
    at += n;
  }
  return out;
}

}  // namespace lathwick
