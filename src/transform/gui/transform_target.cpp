#include "transform/gui/transform_target.h"

namespace lathwick::gui {

transform::RichTextFrame richTextFrameOf(const PassFrame& frame) {
  transform::RichTextFrame f;
  f.header = frame.header;
  f.trailer = frame.trailer;
  f.indentTwips = frame.indentTwips;
  f.markStart = frame.highlightStart;
  f.markEnd = frame.highlightEnd;
  if (frame.comment.active) {
    f.commentOpen = std::string(1, frame.comment.open);
    f.commentClose = std::string(1, frame.comment.close);
  }
  return f;
}

}  // namespace lathwick::gui
