// add-spaces: a space between each address word and the number before it, comments untouched.
#include "commands.h"
#include "transform/spaces.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdAddSpaces(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions({}), 2, "IN and OUT");
  const std::string& in = p.positionals()[0];
  return finishPass(transform::runAddSpaces(in, p.positionals()[1], commentStartFromOptions(p), silentMonitor()),
                    false, in);
}

}  // namespace lathwick::cli
