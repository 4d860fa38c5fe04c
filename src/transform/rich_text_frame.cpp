#include "transform/rich_text_frame.h"

#include "platform/bytes.h"

namespace lathwick::transform {

void commentPairFromText(const std::string& commentText, std::string& open, std::string& close) {
  const std::string t = trimBlanks(commentText);
  open.clear();
  close.clear();
  if (t.empty()) return;
  static constexpr struct {
    char open, close;
  } kPairs[] = {{'(', ')'}, {'[', ']'}, {'"', '"'}, {'{', '}'}, {'~', '~'}};
  for (const auto& p : kPairs) {
    if (t == std::string(1, p.open)) {
      open.assign(1, p.open);
      close.assign(1, p.close);
      return;
    }
  }
  open.assign(1, t.front());
  close.assign(1, t.front());
}

std::string highlightStartMarker(const std::string& highlightAttributes) {
  return trimRightBlanks(highlightAttributes) + " ";
}

std::string highlightEndMarker(const std::string& defaultTextAttributes) {
  // The attribute string ends in one blank of its own; a field read back trimmed has lost it, so
  // put exactly one back: the next character must not run into the last control word.
  return "\\plain" + trimRightBlanks(defaultTextAttributes) + " ";
}

}  // namespace lathwick::transform
