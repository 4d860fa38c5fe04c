// replace --find T --replace R: Replace All over the range, written as the scheme's rich text.
#include "commands.h"
#include "pass_input.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdReplace(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, searchOptionSpecs(true), "IN and OUT");
  const transform::SearchRequest req = searchRequestFrom(p);
  const PassFrame frame = frameFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    const PassInput input(job.in);  // rich OUTs end their lines with CR LF whatever IN had
    return finishPass(transform::runReplaceAll(input.path(), job.out, req, frame, silentMonitor()), true, job);
  });
}

}  // namespace lathwick::cli
