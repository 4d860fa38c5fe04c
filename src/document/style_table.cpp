#include "document/style_table.h"

#include <algorithm>
#include <cstdlib>

namespace lathwick {

StyleTable::StyleTable(StyleFormat defaultFormat)
    : formats_(kStyleCount), defined_(kStyleCount, false) {
  formats_[0] = std::move(defaultFormat);
  defined_[0] = true;
  order_.push_back(0);
  byFont_[formats_[0].fontName].push_back(0);
}

bool StyleTable::isDefined(int style) const {
  return style >= 0 && style < kStyleCount && defined_[static_cast<std::size_t>(style)];
}

int StyleTable::nextFree(int style) {
  ++style;
  if (style >= kFirstReserved && style <= kLastReserved) style = kLastReserved + 1;
  return style;
}

int StyleTable::styleFor(const StyleFormat& format) {
  auto& sameFont = byFont_[format.fontName];
  for (int s : sameFont)
    if (formats_[static_cast<std::size_t>(s)] == format) return s;
  if (next_ >= kStyleCount) {
    overflowed_ = true;
    return closestStyle(format);
  }
  const int style = next_;
  next_ = nextFree(next_);
  formats_[static_cast<std::size_t>(style)] = format;
  defined_[static_cast<std::size_t>(style)] = true;
  order_.push_back(style);
  sameFont.push_back(style);
  return style;
}

// Colour matters most to a reader of a colorized program, then the weight and slant, then the
// font and its size.
int StyleTable::closestStyle(const StyleFormat& format) const {
  int best = 0;
  long bestScore = -1;
  for (int s : order_) {
    const StyleFormat& f = formats_[static_cast<std::size_t>(s)];
    long score = 0;
    if (f.colour == format.colour) score += 1000;
    if (f.bold == format.bold) score += 100;
    if (f.italic == format.italic) score += 100;
    if (f.underline == format.underline) score += 50;
    if (f.fontName == format.fontName) score += 20;
    score += 10 - std::min(10, std::abs(f.halfPoints - format.halfPoints));
    if (score > bestScore) {
      bestScore = score;
      best = s;
    }
  }
  return best;
}

}  // namespace lathwick
