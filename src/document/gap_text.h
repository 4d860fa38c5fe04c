#pragma once
// A document's characters with a movable gap at the last edit, so that a run of edits that walks
// through the text (a macro rewriting every line) costs each edit its own size, not the size of
// the text after it.
#include <cstddef>
#include <string>
#include <string_view>

namespace lathwick {

class GapText {
 public:
  GapText() = default;
  explicit GapText(std::string text) { assign(std::move(text)); }

  void assign(std::string text);
  std::size_t size() const { return buffer_.size() - gapLength(); }
  bool empty() const { return size() == 0; }
  char operator[](std::size_t i) const { return i < gapStart_ ? buffer_[i] : buffer_[i + gapLength()]; }

  // The characters [pos, pos + count), clipped to the text.
  std::string substr(std::size_t pos, std::size_t count) const;
  std::string str() const { return substr(0, size()); }
  // Replaces [pos, pos + count) (clipped) by `text`.
  void replace(std::size_t pos, std::size_t count, std::string_view text);

 private:
  std::size_t gapLength() const { return gapEnd_ - gapStart_; }
  void moveGapTo(std::size_t pos);
  void reserveGap(std::size_t needed);

  std::string buffer_;
  std::size_t gapStart_ = 0, gapEnd_ = 0;
};

}  // namespace lathwick
