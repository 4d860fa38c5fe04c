// highlight --find T: Highlight All over the range; the text stays, every occurrence is marked.
#include "commands.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdHighlight(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, searchOptionSpecs(false), "IN and OUT");
  const transform::SearchRequest req = searchRequestFrom(p);
  const transform::RichTextFrame frame = frameFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    return finishPass(transform::runHighlightAll(job.in, job.out, req, frame, silentMonitor()), true, job);
  });
}

}  // namespace lathwick::cli
