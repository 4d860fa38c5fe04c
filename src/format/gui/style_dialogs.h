#pragma once
// The questions the scheme editor asks about a style: the font dialog (with colour, underline
// and strike-out), the colour dialog for the background, and the one-line query (frmQuerry)
// for the comment and block-skip texts. Tests put scripted answers in place.
#include <cstdint>
#include <optional>
#include <string>

namespace lathwick::gui {

struct FontChoice {
  std::string name;
  int size = 10;
  std::int32_t colour = 0;  // red in the lowest byte
  bool bold = false, italic = false, underline = false, strikeout = false;
};

class StyleDialogs {
 public:
  virtual ~StyleDialogs() = default;
  // Nothing when the user cancelled.
  virtual std::optional<FontChoice> chooseFont(const FontChoice& initial) = 0;
  virtual std::optional<std::int32_t> chooseColour(std::int32_t initial) = 0;
  virtual std::optional<std::string> query(const std::string& prompt, const std::string& initial) = 0;
};

StyleDialogs& styleDialogs();

class ScopedStyleDialogs {
 public:
  explicit ScopedStyleDialogs(StyleDialogs& replacement);
  ~ScopedStyleDialogs();
  ScopedStyleDialogs(const ScopedStyleDialogs&) = delete;
  ScopedStyleDialogs& operator=(const ScopedStyleDialogs&) = delete;

 private:
  StyleDialogs* previous_;
};

}  // namespace lathwick::gui
