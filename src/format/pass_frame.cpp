#include "format/pass_frame.h"

#include "format/rich_text_builder.h"
#include "platform/bytes.h"

namespace lathwick {

CommentDelimiters commentDelimitersFor(std::string_view commentText) {
  const std::string t = trimBlanks(commentText);
  if (t.empty()) return {' ', ' ', false};
  switch (t.front()) {
    case '(': return {'(', ')', true};
    case '[': return {'[', ']', true};
    case '{': return {'{', '}', true};
    default: return {t.front(), t.front(), true};  // '"' and '~' pair with themselves too
  }
}

std::string PassFrame::lineStart(bool firstLine) const {
  return (firstLine ? "\\li" : "\\par\\li") + std::to_string(indentTwips) + " ";
}

PassFrame makePassFrame(const SchemeRecord& record, const std::string* commentOverride) {
  PassFrame f;
  f.header = trimRightBlanks(record.rtfHeader);
  f.trailer = trimRightBlanks(record.rtfTrailer);
  f.indentTwips = static_cast<long>(record.indentSteps()) * kTwipsPerIndentStep;
  for (int set = 0; set < kSetCount; ++set)
    for (int i = 0; i < kStyleCount; ++i) f.attributes[set][i] = trimRightBlanks(record.style(set, i).attributes);
  f.highlightStart = trimRightBlanks(record.style(1, kHighlightStyle).attributes) + " ";
  f.plainText = attributeString(record, 0, kOtherTextStyle);
  f.highlightEnd = "\\plain" + f.plainText;
  f.blockSkipText = trimBlanks(record.style(0, kBlockSkipStyle).marker);
  f.comment = commentDelimitersFor(commentOverride ? *commentOverride : record.style(0, kCommentStyle).marker);
  f.backColour = record.backColour;
  return f;
}

}  // namespace lathwick
