// highlight --find T: Highlight All over the range; the text stays, every occurrence is marked.
#include "commands.h"
#include "pass_input.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdHighlight(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, searchOptionSpecs(false), "IN and OUT");
  const transform::SearchRequest req = searchRequestFrom(p);
  const PassFrame frame = frameFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    const PassInput input(job.in);  // rich OUTs end their lines with CR LF whatever IN had
    return finishPass(transform::runHighlightAll(input.path(), job.out, req, frame, silentMonitor()), true, job);
  });
}

}  // namespace lathwick::cli
