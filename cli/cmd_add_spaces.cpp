// add-spaces: a space between each address word and the number before it, comments untouched.
#include "commands.h"
#include "pass_input.h"
#include "transform/spaces.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdAddSpaces(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, withSchemeOptions({}), "IN and OUT");
  const std::string commentStart = commentStartFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    const PassInput input(job.in);
    return finishPass(input.plainOut(transform::runAddSpaces(input.path(), job.out, commentStart, silentMonitor()), job.out),
                      false, job);
  });
}

}  // namespace lathwick::cli
