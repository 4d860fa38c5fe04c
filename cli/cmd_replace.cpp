// replace --find T --replace R: Replace All over the range, written as the scheme's rich text.
#include "commands.h"
#include "pass_input.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdReplace(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, searchOptionSpecs(true), 2, "IN and OUT");
  const transform::SearchRequest req = searchRequestFrom(p);
  const transform::RichTextFrame frame = frameFromOptions(p);
  const std::string& in = p.positionals()[0];
  const PassInput input(in);  // rich OUTs end their lines with CR LF whatever IN had
  return finishPass(transform::runReplaceAll(input.path(), p.positionals()[1], req, frame, silentMonitor()), true, in);
}

}  // namespace lathwick::cli
