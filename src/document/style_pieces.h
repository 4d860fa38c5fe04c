#pragma once
// Where the styles of a document come from since it was loaded: stretches of the styles it was
// loaded with, and stretches of text edited since. Saving then takes the loaded styles and
// asks the control only for the edited stretches, instead of reading every style back.
#include <cstddef>
#include <vector>

namespace lathwick {

class StylePieces {
 public:
  void reset(std::size_t length);                 // the whole document as loaded
  void erase(std::size_t position, std::size_t length);
  void insert(std::size_t position, std::size_t length);

  std::size_t pieceCount() const { return pieces_.size(); }
  // True while the document is exactly as loaded.
  bool unchanged(std::size_t length) const;

  // One stretch of the document: `count` characters from `at`, either as loaded (then they
  // are the loaded styles from `loadedStart`) or edited since.
  struct Stretch {
    bool loaded;
    std::size_t loadedStart;
    std::size_t at;
    std::size_t count;
    bool operator==(const Stretch&) const = default;
  };
  // The stretches of the first `length` characters, in order.
  std::vector<Stretch> stretches(std::size_t length) const;

 private:
  struct Piece {
    bool loaded;
    std::size_t start;  // offset in the loaded styles (loaded pieces only)
    std::size_t length;
  };
  // Splits so that a piece starts at `position`; returns that piece's index.
  std::size_t splitAt(std::size_t position);

  std::vector<Piece> pieces_;
};

}  // namespace lathwick
