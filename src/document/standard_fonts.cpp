#include "document/standard_fonts.h"

#include <algorithm>
#include <array>
#include <cctype>

#include "document/pdf_font_widths.h"

namespace lathwick {

namespace {

// Parts of a font's name that tell its face; looked for in the lower-cased name, fixed-pitch
// first, since "Lucida Sans Typewriter" is fixed-pitch and "DejaVu Serif" is not sans.
constexpr std::array kFixedPitchWords{"courier", "mono", "consol", "console", "fixed", "terminal", "typewriter",
                                      "fixedsys", "code", "lucida sans typewriter", "ocr"};
constexpr std::array kSerifWords{"times", "roman", "serif", "georgia", "garamond", "palatino", "book",
                                 "century", "cambria", "bodoni", "baskerville", "schoolbook"};

bool contains(const std::string& text, const char* word) { return text.find(word) != std::string::npos; }

}  // namespace

int StandardFont::index() const { return static_cast<int>(family) * 4 + (bold ? 1 : 0) + (italic ? 2 : 0); }

StandardFamily standardFamilyOf(std::string_view fontName) {
  std::string name(fontName);
  std::transform(name.begin(), name.end(), name.begin(),
                 [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
  for (const char* word : kFixedPitchWords)
    if (contains(name, word)) return StandardFamily::Courier;
  if (contains(name, "sans")) return StandardFamily::Helvetica;
  for (const char* word : kSerifWords)
    if (contains(name, word)) return StandardFamily::Times;
  return StandardFamily::Helvetica;
}

std::string standardFontName(const StandardFont& font) {
  switch (font.family) {
    case StandardFamily::Courier:
    case StandardFamily::Helvetica: {
      std::string name = font.family == StandardFamily::Courier ? "Courier" : "Helvetica";
      if (font.bold || font.italic) name += "-";
      if (font.bold) name += "Bold";
      if (font.italic) name += "Oblique";
      return name;
    }
    case StandardFamily::Times:
      if (font.bold && font.italic) return "Times-BoldItalic";
      if (font.bold) return "Times-Bold";
      if (font.italic) return "Times-Italic";
      return "Times-Roman";
  }
  return "Courier";
}

double standardTextWidth(const StandardFont& font, double size, std::string_view text) {
  const auto& widths = kStandardFontWidths.at(static_cast<std::size_t>(font.index()));
  long total = 0;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    total += widths[byte < 32 ? 0 : byte - 32];
  }
  return static_cast<double>(total) * size / 1000.0;
}

}  // namespace lathwick
