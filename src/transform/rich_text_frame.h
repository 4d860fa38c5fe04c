#pragma once
// The pieces of the current scheme that a rich-text pass writes around and into the program
// text. The caller fills it from the scheme (format/pass_frame.h) so the passes need no record.
#include <string>

namespace lathwick::transform {

struct RichTextFrame {
  std::string header;        // the scheme's RTF header (trailing blanks are removed on output)
  std::string trailer;       // the scheme's RTF trailer, normally "\par}"
  long indentTwips = 0;      // paragraph indent written after "\li"
  std::string markStart;     // highlight start marker, inserted as given
  std::string markEnd;       // highlight end marker, inserted as given
  std::string commentOpen;   // the scheme's comment delimiter pair, "(" and ")" typically;
  std::string commentClose;  // empty when the scheme has no comment text
};

}  // namespace lathwick::transform
