#pragma once
// The text control's styles for a document: every distinct character format (font, size,
// colour, bold, italic, underline) gets a style number of its own. Numbers are reused for a
// format seen before and handed out as new formats appear; the control has 256 styles, of which
// 32-39 are its own, so past the last free number a format takes the nearest style it has.
// Strikeout is not part of a style: the control draws it as an indicator over the text.
#include <cstdint>
#include <string>
#include <unordered_map>
#include <vector>

#include "document/rtf_document.h"

namespace lathwick {

struct StyleFormat {
  std::string fontName;
  int halfPoints = 20;
  std::uint32_t colour = kAutoColour;  // kAutoColour: the default text colour
  bool bold = false;
  bool italic = false;
  bool underline = false;
  // The font's family is fixed pitch: a stand-in for a missing font must be fixed pitch too.
  bool fixedPitch = false;
  bool operator==(const StyleFormat&) const = default;
};

class StyleTable {
 public:
  static constexpr int kStyleCount = 256;
  static constexpr int kFirstReserved = 32;
  static constexpr int kLastReserved = 39;
  static constexpr int kUsableStyles = kStyleCount - (kLastReserved - kFirstReserved + 1);

  // Style 0 is the default format: plain text is all style 0.
  explicit StyleTable(StyleFormat defaultFormat = {});

  // The style of a format: the one it already has, a new one, or past the limit the closest.
  int styleFor(const StyleFormat& format);
  const StyleFormat& format(int style) const { return formats_[static_cast<std::size_t>(style)]; }
  const StyleFormat& defaultFormat() const { return formats_[0]; }
  bool isDefined(int style) const;
  // The defined style numbers, in the order they were handed out (0 first).
  const std::vector<int>& styles() const { return order_; }
  // True once a format had to share the style of another (the table was full).
  bool overflowed() const { return overflowed_; }

 private:
  static int nextFree(int style);
  int closestStyle(const StyleFormat& format) const;

  std::vector<StyleFormat> formats_;
  std::vector<bool> defined_;
  std::vector<int> order_;
  std::unordered_map<std::string, std::vector<int>> byFont_;
  int next_ = 1;
  bool overflowed_ = false;
};

}  // namespace lathwick
