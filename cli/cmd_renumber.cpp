// renumber --start S --increment I --char N --skip CHARS --method 0|1|2: new sequence numbers
// over the range, written as plain text.
#include "commands.h"
#include "pass_input.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/vb_convert.h"
#include "transform/renumber.h"
#include "transform_common.h"

namespace lathwick::cli {

namespace {
std::int32_t wholeNumber(const ParsedArgs& p, const char* option) {
  const std::string text = *p.value(option);
  try {
    return toInt32(text);  // rounded as the dialog rounds its entries
  } catch (const AppError&) {
    throw UsageError(std::string("option ") + option + " needs a whole number, not '" + text + "'");
  }
}
}  // namespace

int cmdRenumber(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args,
                                         withRangeOption({{"--start", true, true},
                                                          {"--increment", true, true},
                                                          {"--char", true, true},
                                                          {"--skip", true, true},
                                                          {"--method", true, true}}),
                                         2, "IN and OUT");
  transform::RenumberRequest req;
  req.start = wholeNumber(p, "--start");
  req.increment = wholeNumber(p, "--increment");
  const std::string method = *p.value("--method");
  if (method.size() != 1 || method[0] < '0' || method[0] > '2')
    throw UsageError("option --method needs 0, 1 or 2, not '" + method + "'");
  req.method = static_cast<transform::RenumberMethod>(method[0] - '0');
  req.sequenceText = *p.value("--char");
  req.skipCharacters = *p.value("--skip");
  req.range = rangeFromOptions(p);
  const std::string& in = p.positionals()[0];
  if (!trimBlanks(req.sequenceText).empty()) req.commentStart = commentStartFromOptions(p);
  const std::string& out = p.positionals()[1];
  const PassInput input(in);
  return finishPass(input.plainOut(transform::runRenumber(input.path(), out, req, silentMonitor()), out), false, in);
}

}  // namespace lathwick::cli
