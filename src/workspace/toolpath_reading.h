#pragma once
// A program is read for its tool path as the colorizer reads it under the scheme in use: the
// comment pair the colorizer derives from the scheme's comment text, and its block-skip text.
#include "extend/toolpath/block_reader.h"
#include "format/pass_frame.h"

namespace lathwick {

inline toolpath::ReaderOptions toolpathReaderOptions(const PassFrame& frame) {
  toolpath::ReaderOptions options;
  options.comment = {frame.comment.open, frame.comment.close, frame.comment.active};
  options.blockSkip = frame.blockSkipText;
  return options;
}

}  // namespace lathwick
