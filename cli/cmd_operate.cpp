// operate [--address XYZ] [--operator '*'] [--value V] [--format PICTURE]: arithmetic on the
// values of the chosen addresses over the range, each new value formatted and marked. An option
// left out takes the operate dialog's default: "XYZ", "*", 1, "##0.0###".
#include <cstdio>

#include "commands.h"
#include "pass_input.h"
#include "platform/errors.h"
#include "platform/vb_convert.h"
#include "platform/settings_table.h"
#include "transform/numeric_picture.h"
#include "transform/operate.h"
#include "transform_common.h"

namespace lathwick::cli {

namespace {
// What the dialog shows when it opens on a fresh settings file.
transform::OperateEntries dialogDefaults() {
  const transform::OperateRequest fresh;
  return {settingDefault(Setting::OperateAddress), settingDefault(Setting::OperateOperators),
          singleText(fresh.operand), fresh.format};
}
}  // namespace

int cmdOperate(const Args& args) {
  const ParsedArgs p = parseFileCommand(args,
                                        withRangeOption({{"--address", true, false},
                                                         {"--operator", true, false},
                                                         {"--value", true, false},
                                                         {"--format", true, false},
                                                         {"--exclude-comments", false, false}}),
                                        "IN and OUT");
  const transform::OperateEntries defaults = dialogDefaults();
  transform::OperateEntries entries{p.valueOr("--address", defaults.address), p.valueOr("--operator", defaults.op),
                                    p.valueOr("--value", defaults.value), p.valueOr("--format", defaults.format)};
  // What the dialog's boxes would never let through is a usage error here; what they would
  // (empty boxes, "/" with zero) gets the dialog's own messages.
  if (entries.op.size() != 1 || std::string("*+-/").find(entries.op) == std::string::npos)
    throw UsageError("option --operator needs one of * + - /, not '" + entries.op + "'");
  for (const char c : entries.address)
    if (!((c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z')))
      throw UsageError("option --address takes address letters only, not '" + entries.address + "'");
  if (!transform::NumericPicture::isValid(entries.format))
    throw UsageError("option --format takes a picture of 0, # and one ., not '" + entries.format + "'");
  double operand = 0;
  if (!entries.value.empty()) {
    try {
      operand = toDouble(entries.value);
    } catch (const AppError&) {
      throw UsageError("option --value needs a number, not '" + entries.value + "'");
    }
  }
  const transform::OperateValidation check = transform::validateOperate(entries);
  if (!check.message.empty()) {
    std::fprintf(stderr, "%s\n", check.message.c_str());
    return kExitRefused;
  }
  transform::OperateRequest req;
  req.addresses = entries.address;
  req.op = entries.op.front();
  req.operand = operand;
  req.format = entries.format;
  req.excludeComments = p.flag("--exclude-comments");
  req.range = rangeFromOptions(p);
  req.displayLineCount = 0;
  const PassFrame frame = frameFromOptions(p);
  return forEachFile(p, [&](const FileJob& job) {
    const PassInput input(job.in);  // rich OUTs end their lines with CR LF whatever IN had
    return finishPass(transform::runOperate(input.path(), job.out, req, frame, silentMonitor()), true, job);
  });
}

}  // namespace lathwick::cli
