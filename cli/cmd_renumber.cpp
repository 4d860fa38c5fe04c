// renumber [--start S] [--increment I] [--char N] [--skip CHARS] [--method 0|1|2]
// [--keep-references]: new sequence numbers over the range, written as plain text. An option left
// out takes the renumber dialog's default (start 100, increment 1, "N", skip "%", method 2: all
// non-comment lines); with --keep-references the words that name a renumbered block follow it.
#include "commands.h"
#include "pass_input.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/vb_convert.h"
#include "platform/settings_table.h"
#include "transform/renumber.h"
#include "transform_common.h"

namespace lathwick::cli {

namespace {
// The option's value, or the dialog's default from the settings table.
std::string valueOrDialogDefault(const ParsedArgs& p, const char* option, Setting setting) {
  return p.valueOr(option, settingDefault(setting));
}

std::int32_t wholeNumber(const ParsedArgs& p, const char* option, Setting setting) {
  const std::string text = valueOrDialogDefault(p, option, setting);
  try {
    return toInt32(text);  // rounded as the dialog rounds its entries
  } catch (const AppError&) {
    throw UsageError(std::string("option ") + option + " needs a whole number, not '" + text + "'");
  }
}
}  // namespace

int cmdRenumber(const Args& args) {
  const ParsedArgs p = parseFileCommand(args,
                                        withRangeOption({{"--start", true, false},
                                                         {"--increment", true, false},
                                                         {"--char", true, false},
                                                         {"--skip", true, false},
                                                         {"--method", true, false},
                                                         {"--keep-references", false, false}}),
                                        "IN and OUT");
  transform::RenumberRequest req;
  req.start = wholeNumber(p, "--start", Setting::NumberingStart);
  req.increment = wholeNumber(p, "--increment", Setting::NumberingIncrement);
  const std::string method = valueOrDialogDefault(p, "--method", Setting::NumberingMethod);
  if (method.size() != 1 || method[0] < '0' || method[0] > '2')
    throw UsageError("option --method needs 0, 1 or 2, not '" + method + "'");
  req.method = static_cast<transform::RenumberMethod>(method[0] - '0');
  req.sequenceText = valueOrDialogDefault(p, "--char", Setting::NumberingCharacter);
  req.skipCharacters = valueOrDialogDefault(p, "--skip", Setting::NumberingSkipLines);
  req.range = rangeFromOptions(p);
  req.updateReferences = p.flag("--keep-references");
  if (!trimBlanks(req.sequenceText).empty()) req.commentStart = commentStartFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    const PassInput input(job.in);
    return finishPass(input.plainOut(transform::runRenumber(input.path(), job.out, req, silentMonitor()), job.out),
                      false, job);
  });
}

}  // namespace lathwick::cli
