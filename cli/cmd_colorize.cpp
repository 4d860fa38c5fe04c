// colorize --view modes|codes IN OUT: the editor's "View Modes" and "View Codes" pass.
#include <cstdio>
#include <string>

#include "commands.h"
#include "pass_input.h"
#include "format/colorizer.h"
#include "file_args.h"
#include "format/scheme_data_file.h"
#include "options.h"
#include "platform/errors.h"

namespace lathwick::cli {

int cmdColorize(const Args& args) {
  const ParsedArgs p = parseFileCommand(args, withSchemeOptions({{"--view", true, true}}), "IN OUT");
  const std::string viewName = *p.value("--view");
  if (viewName != "modes" && viewName != "codes")
    throw UsageError("option --view needs modes or codes, not '" + viewName + "'");
  const ColorizeView view = viewName == "modes" ? ColorizeView::Modes : ColorizeView::Codes;
  const long n = parseInteger("--scheme", p.valueOr("--scheme", "1"));

  SchemeRecord scheme;
  try {
    scheme = loadScheme(p.valueOr("--data", bundledDataFilePath()), n);
  } catch (const DataFileProblem& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return kExitRefused;
  }
  const auto comment = p.value("--comment");
  return forEachFile(p, [&](const FileJob& job) {
    const PassInput input(job.in);
    const PassResult r =
        colorizeFile(scheme, view, input.path(), job.out, silentMonitor(), comment ? &*comment : nullptr);
    switch (r.outcome) {
      case PassOutcome::Completed: return kExitOk;
      case PassOutcome::NoInput:
        std::fprintf(stderr, "%s: %s\n", job.name.c_str(), makeError(err::kFileNotFound).what());
        return kExitRefused;
      default:
        std::fprintf(stderr, "%s%s\n", job.countPrefix.c_str(), r.message.c_str());
        return kExitRefused;
    }
  });
}

}  // namespace lathwick::cli
