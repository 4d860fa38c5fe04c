// remove-spaces: every space outside the comments goes.
#include "commands.h"
#include "transform/spaces.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdRemoveSpaces(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, withSchemeOptions({}), "IN and OUT");
  const std::string commentStart = commentStartFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    return finishPass(transform::runRemoveSpaces(job.in, job.out, commentStart, silentMonitor()), false, job);
  });
}

}  // namespace lathwick::cli
