#pragma once
// A rich-text frame with "<" ">" as highlight markers and "(" ")" as comments, so that expected
// lines stay readable.
#include <string>

#include "transform/rich_text_frame.h"

namespace lathwick::test {

inline transform::RichTextFrame markerFrame(std::string header, std::string trailer, long indentTwips = 0) {
  return {std::move(header), std::move(trailer), indentTwips, "<", ">", "(", ")"};
}

}  // namespace lathwick::test
