#pragma once
// A rich-text frame with "<" ">" as highlight markers and "(" ")" as comments, so that expected
// lines stay readable.
#include <string>

#include "format/pass_frame.h"

namespace lathwick::test {

inline PassFrame markerFrame(std::string header, std::string trailer, long indentTwips = 0) {
  PassFrame frame;
  frame.header = std::move(header);
  frame.trailer = std::move(trailer);
  frame.indentTwips = indentTwips;
  frame.highlightStart = "<";
  frame.highlightEnd = ">";
  frame.comment = {'(', ')', true};
  return frame;
}

}  // namespace lathwick::test
