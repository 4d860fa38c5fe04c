// highlight --find T: Highlight All over the range; the text stays, every occurrence is marked.
#include "commands.h"
#include "pass_input.h"
#include "transform_common.h"

namespace lathwick::cli {

int cmdHighlight(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, searchOptionSpecs(false), 2, "IN and OUT");
  const transform::SearchRequest req = searchRequestFrom(p);
  const transform::RichTextFrame frame = frameFromOptions(p);
  const std::string& in = p.positionals()[0];
  const PassInput input(in);  // rich OUTs end their lines with CR LF whatever IN had
  return finishPass(transform::runHighlightAll(input.path(), p.positionals()[1], req, frame, silentMonitor()), true, in);
}

}  // namespace lathwick::cli
