// add-spaces: a space between each address word and the number before it, comments untouched.
#include "commands.h"
#include "transform/spaces.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdAddSpaces(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, withSchemeOptions({}), "IN and OUT");
  const std::string commentStart = commentStartFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    return finishPass(transform::runAddSpaces(job.in, job.out, commentStart, silentMonitor()), false, job);
  });
}

}  // namespace lathwick::cli
