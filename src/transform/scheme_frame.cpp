#include "transform/scheme_frame.h"

namespace lathwick::transform {

RichTextFrame richTextFrameOf(const PassFrame& frame) {
  RichTextFrame f;
  f.header = frame.header;
  f.trailer = frame.trailer;
  f.indentTwips = frame.indentTwips;
  f.markStart = frame.highlightStart;
  f.markEnd = frame.highlightEnd;
  if (frame.comment.active) {
    f.commentOpen.assign(1, frame.comment.open);
    f.commentClose.assign(1, frame.comment.close);
  }
  return f;
}

}  // namespace lathwick::transform
