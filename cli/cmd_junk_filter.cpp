// junk-filter: printable characters only, every line ended by CR LF, leading noise dropped.
#include "commands.h"
#include "options.h"
#include "transform/junk_filter.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdJunkFilter(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, {}, 2, "IN and OUT");
  const std::string& in = p.positionals()[0];
  return finishPass(transform::runJunkFilter(in, p.positionals()[1], silentMonitor()), false, in);
}

}  // namespace lathwick::cli
