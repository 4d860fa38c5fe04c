// remove-spaces: every space outside the comments goes.
#include "commands.h"
#include "transform/spaces.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdRemoveSpaces(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions({}), 2, "IN and OUT");
  const std::string& in = p.positionals()[0];
  return finishPass(
      transform::runRemoveSpaces(in, p.positionals()[1], commentStartFromOptions(p), silentMonitor()), false, in);
}

}  // namespace lathwick::cli
