// remove-spaces: every space outside the comments goes.
#include "commands.h"
#include "pass_input.h"
#include "transform/spaces.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdRemoveSpaces(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions({}), 2, "IN and OUT");
  const std::string& in = p.positionals()[0];
  const std::string& out = p.positionals()[1];
  const PassInput input(in);
  return finishPass(
      input.plainOut(transform::runRemoveSpaces(input.path(), out, commentStartFromOptions(p), silentMonitor()), out),
      false, in);
}

}  // namespace lathwick::cli
