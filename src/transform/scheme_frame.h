#pragma once
// The current scheme's pieces as the rich-text passes take them: the passes know nothing of
// the scheme record, only of this frame.
#include "format/pass_frame.h"
#include "transform/rich_text_frame.h"

namespace lathwick::transform {

RichTextFrame richTextFrameOf(const PassFrame& frame);

}  // namespace lathwick::transform
