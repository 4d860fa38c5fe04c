#pragma once
// A small PDF writer: pages of filled rectangles, lines and text in the standard fonts, which
// is all a printed listing needs. Coordinates are points from the top left corner of the page.
// Text is one byte per character (Windows-1252, the editor's own form).
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "document/standard_fonts.h"

namespace lathwick {

// Colours as the schemes keep them: red in the lowest byte, then green, then blue.
using PdfColour = std::uint32_t;

class PdfWriter {
 public:
  void beginPage(double width, double height);
  void fillRect(double x, double y, double width, double height, PdfColour colour);
  void line(double x1, double y1, double x2, double y2, double thickness, PdfColour colour);
  // Text whose baseline starts at (x, y).
  void text(double x, double y, const StandardFont& font, double size, PdfColour colour, std::string_view bytes);

  int pageCount() const { return static_cast<int>(pages_.size()); }
  // The whole file. A writer with no page gives a file of one empty A4 page, as a PDF must
  // have at least one.
  std::string finish() const;

 private:
  struct Page {
    double width, height;
    std::string content;
  };
  Page& current();
  double flip(double y) const;

  std::vector<Page> pages_;
  std::vector<bool> fontsUsed_ = std::vector<bool>(12, false);
};

}  // namespace lathwick
