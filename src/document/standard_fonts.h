#pragma once
// The fonts a printed listing is set in when it goes to PDF: the three standard families, each
// plain, bold, italic or both. Any font a scheme or a document names is mapped to the nearest of
// them (fixed-pitch fonts to Courier, serif fonts to Times, the rest to Helvetica), so a PDF
// needs no embedded font and opens everywhere.
#include <string>
#include <string_view>

namespace lathwick {

enum class StandardFamily { Courier, Helvetica, Times };

struct StandardFont {
  StandardFamily family = StandardFamily::Courier;
  bool bold = false;
  bool italic = false;
  bool operator==(const StandardFont&) const = default;
  int index() const;  // 0 to 11: family × 4 + bold + 2 × italic
};

// The family for a font name. Names are judged by what they say of the face ("Courier New",
// "Consolas", "Lucida Console", "DejaVu Sans Mono" are fixed-pitch; "Times New Roman",
// "Georgia" are serif); an unknown name is set in Helvetica.
StandardFamily standardFamilyOf(std::string_view fontName);

// "Courier-BoldOblique", "Times-Italic" ...: the font's name in a PDF.
std::string standardFontName(const StandardFont& font);

// Width in points of one-byte text (Windows-1252) set in the font at `size` points. Bytes
// below 32 count as blanks.
double standardTextWidth(const StandardFont& font, double size, std::string_view text);

}  // namespace lathwick
