#pragma once
// What the user is told after a colour run or a pass: one decision for the editor and the
// headless workspace alike, so both show the same text, caption and icon for each outcome.
#include <string>

#include "platform/questions.h"
#include "transform/pass_result.h"

namespace lathwick {

struct ColorizeResult;

struct PassReport {
  bool shown = false;  // false: nothing is said (completed, or no input to work on)
  std::string text;
  std::string caption;
  Icon icon = Icon::None;
};

PassReport reportOf(const transform::PassResult& result);
PassReport reportOf(const ColorizeResult& result);

// The comment-start text of a scheme (set 0, style 10 marker, blanks trimmed), "(" when the
// data file cannot give it.
std::string commentStartText(const std::string& dataFile, int scheme);

}  // namespace lathwick
