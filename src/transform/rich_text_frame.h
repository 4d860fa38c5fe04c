#pragma once
// The pieces of the current scheme that a rich-text pass writes around and into the program
// text. Filled by the caller from the scheme record so the passes do not depend on it.
#include <string>

namespace lathwick::transform {

struct RichTextFrame {
  std::string header;          // the scheme's RTF header (trailing blanks are removed on output)
  std::string trailer;         // the scheme's RTF trailer, normally "\par}"
  long indentSteps = 0;        // paragraph indent in steps of 200 twips
  std::string markStart;       // highlight start marker, inserted as given
  std::string markEnd;         // highlight end marker, inserted as given
  std::string commentOpen;     // comment delimiter pair of the scheme, "(" and ")" typically
  std::string commentClose;
};

// The delimiter pair the colorizer derives from a comment-start text: "(" gives "()", "[" gives
// "[]", a double quote gives two, "{" gives "{}", "~" gives "~~", anything else its first
// character twice. Empty text gives an empty pair (no comments).
void commentPairFromText(const std::string& commentText, std::string& open, std::string& close);

// The highlight start marker built from the attribute string of the "Highlight" code style and
// the end marker built from the default text's attribute string.
std::string highlightStartMarker(const std::string& highlightAttributes);
std::string highlightEndMarker(const std::string& defaultTextAttributes);

}  // namespace lathwick::transform
