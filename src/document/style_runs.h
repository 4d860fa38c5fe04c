#pragma once
// Styles as runs rather than one byte per character: a style number and the number of
// characters that carry it. A coloured program changes style a few times a line, so its runs
// take a fraction of the room of a style byte per character, and the rich-text writer can copy
// whole runs of text at a time.
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

namespace lathwick {

struct StyleRun {
  std::size_t length;
  unsigned char style;
  bool operator==(const StyleRun&) const = default;
};

// Where a writer takes the styles of a text from, in text order.
class StyleRunSource {
 public:
  virtual ~StyleRunSource() = default;
  // The next runs; empty at the end. Valid until the next call.
  virtual std::span<const StyleRun> next() = 0;
};

// The styles of a whole document, packed: each run is its style byte and its length in a
// variable number of bytes (one below 128), with a mark every so many runs so that reading can
// start anywhere without decoding from the beginning.
class StyleRuns {
 public:
  void clear();
  // Adds `length` characters in `style` at the end (joining the last run when it has the style).
  void append(std::size_t length, unsigned char style);
  std::size_t length() const { return length_; }
  std::size_t runCount() const;
  std::size_t bytesUsed() const { return bytes_.capacity() + marks_.capacity() * sizeof(Mark); }

  // The runs of characters [from, from + count), the first and last cut to that range.
  class Reader : public StyleRunSource {
   public:
    Reader(const StyleRuns& runs, std::size_t from, std::size_t count);
    std::span<const StyleRun> next() override;

   private:
    const StyleRuns& runs_;
    std::size_t offset_ = 0;    // next byte to decode
    std::size_t position_ = 0;  // first character of the next run decoded
    std::size_t from_;
    std::size_t end_;
    bool lastDone_ = false;     // the open run (not yet packed) has been given
    std::array<StyleRun, 256> batch_{};
  };
  Reader read(std::size_t from, std::size_t count) const { return Reader(*this, from, count); }

 private:
  static constexpr std::size_t kMarkEvery = 1024;  // runs between marks
  struct Mark {
    std::size_t position;  // first character of the run
    std::size_t offset;    // its first byte
  };
  void pack(std::size_t length, unsigned char style);

  std::vector<unsigned char> bytes_;
  std::vector<Mark> marks_;
  std::size_t packedRuns_ = 0;
  std::size_t packedLength_ = 0;
  // The last run stays open, so that appending in the same style only lengthens it.
  std::size_t openLength_ = 0;
  unsigned char openStyle_ = 0;
  std::size_t length_ = 0;
};

// One style byte per character, read as runs.
class CharacterStyleRuns : public StyleRunSource {
 public:
  explicit CharacterStyleRuns(std::string_view styles) : styles_(styles) {}
  std::span<const StyleRun> next() override;

 private:
  std::string_view styles_;
  std::size_t at_ = 0;
  std::array<StyleRun, 256> batch_{};
};

}  // namespace lathwick
