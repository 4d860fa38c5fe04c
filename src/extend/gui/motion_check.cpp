#include "extend/gui/motion_check.h"

#include "extend/verify/motion_verdict.h"
#include "format/pass_frame.h"
#include "platform/file_system.h"
#include "transform/gui/transform_target.h"

namespace lathwick::gui {

void installMotionCheck() {
  setPassObserver([](TransformTarget& target, PassKind kind) { checkMotionAfterPass(target, kind); });
}

std::string checkMotionAfterPass(TransformTarget& target, PassKind kind) {
  const auto before = readWholeFile(target.inputWorkFile());
  // The document as it now stands, whatever form the pass wrote (operate writes rich text).
  const std::string afterPath = target.outputWorkFile();
  if (!before || !target.savePlainText(afterPath)) return {};
  const auto after = readWholeFile(afterPath);
  if (!after) return {};
  toolpath::ModelOptions model;
  const CommentDelimiters comment = commentDelimitersFor(target.commentStartText());
  model.reader.comment = {comment.open, comment.close, comment.active};
  const verify::MotionVerdict v = kind == PassKind::KeepsMotion ? verify::verdictAfterPass(*before, *after, model)
                                                                : verify::verdictAfterOperate(*before, *after, model);
  target.setStatusText(v.text);
  return v.text;
}

}  // namespace lathwick::gui
