#pragma once
// Styled text as the text control holds it: one style byte per character and the ranges drawn
// struck out. Built from what the reader found, and read back by the writer.
#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "document/rtf_document.h"
#include "document/style_table.h"

namespace lathwick {

struct TextRange {
  std::size_t start;
  std::size_t end;  // one past the last character
  bool operator==(const TextRange&) const = default;
};

struct DocumentStyling {
  std::string styles;                 // one style number (as a byte) per character of the text
  std::vector<TextRange> strikeouts;  // in order, not overlapping
};

// The style a run format takes in the table: a font the document does not name is the table's
// default font, and text with no format at all (plain text, for one) is in the default style.
StyleFormat styleFormatOf(const RtfFormatTable& doc, const RtfCharFormat& format, const StyleTable& table);

// Styles every character of the document, adding its formats to the table.
DocumentStyling styleDocument(const RtfDocument& doc, StyleTable& table);

}  // namespace lathwick
