// junk-filter: printable characters only, every line ended by CR LF, leading noise dropped.
#include "commands.h"
#include "options.h"
#include "transform/junk_filter.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdJunkFilter(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, {}, "IN and OUT");
  return forEachFile(p, [](const FileJob& job) {
    return finishPass(transform::runJunkFilter(job.in, job.out, silentMonitor()), false, job);
  });
}

}  // namespace lathwick::cli
