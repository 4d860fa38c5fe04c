#pragma once
// The rich-text writer: saves styled text as RTF that this reader and word processors read back
// with the same text and formats. Paragraph breaks (CR LF) become \par, one per source line; the
// left indent goes on every paragraph; characters outside ASCII are written as \'hh escapes.
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "document/rtf_styling.h"
#include "document/style_runs.h"
#include "document/style_table.h"

namespace lathwick {

struct StyledTextView {
  std::string_view text;
  std::string_view styles;                        // one style byte per character, or empty
  const std::vector<TextRange>* strikeouts = nullptr;  // offsets into `text`
  int indentTwips = 0;
  // The styles as runs instead (read once, from the start); when given, `styles` is not used.
  // Text past the end of the runs is in style 0.
  StyleRunSource* runs = nullptr;
};

std::string writeRtf(const StyledTextView& view, const StyleTable& table);

// The same, handed out in pieces of about a megabyte as it is made (large documents are written
// to their file without the whole rich text in memory).
void writeRtf(const StyledTextView& view, const StyleTable& table, const std::function<void(std::string_view)>& sink);

// Writes through a temporary file; throws AppError when it cannot.
void writeRtfFile(const std::string& path, const StyledTextView& view, const StyleTable& table);

}  // namespace lathwick
