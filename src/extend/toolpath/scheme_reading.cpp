#include "extend/toolpath/scheme_reading.h"

#include "platform/bytes.h"

namespace lathwick::toolpath {

ReaderOptions readerOptionsFor(const SchemeRecord& scheme, const std::string* commentOverride) {
  ReaderOptions options;
  options.comment = commentDelimitersFor(commentOverride ? *commentOverride : scheme.style(0, kCommentStyle).marker);
  options.blockSkip = trimBlanks(scheme.style(0, kBlockSkipStyle).marker);
  return options;
}

}  // namespace lathwick::toolpath
