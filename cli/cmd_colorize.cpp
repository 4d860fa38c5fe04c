// colorize --view modes|codes IN OUT: the editor's "View Modes" and "View Codes" pass.
#include <cstdio>
#include <string>

#include "commands.h"
#include "pass_input.h"
#include "format/colorizer.h"
#include "format/scheme_data_file.h"
#include "options.h"
#include "platform/errors.h"

namespace lathwick::cli {

int cmdColorize(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions({{"--view", true, true}}), 2, "IN OUT");
  const std::string viewName = *p.value("--view");
  if (viewName != "modes" && viewName != "codes")
    throw UsageError("option --view needs modes or codes, not '" + viewName + "'");
  const ColorizeView view = viewName == "modes" ? ColorizeView::Modes : ColorizeView::Codes;
  const long n = parseInteger("--scheme", p.valueOr("--scheme", "1"));
  const std::string& in = p.positionals()[0];
  const std::string& out = p.positionals()[1];

  SchemeRecord scheme;
  try {
    scheme = loadScheme(p.valueOr("--data", bundledDataFilePath()), n);
  } catch (const DataFileProblem& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return kExitRefused;
  }
  const auto comment = p.value("--comment");
  const PassInput input(in);
  const ColorizeResult r = colorizeFile(scheme, view, input.path(), out, silentMonitor(), comment ? &*comment : nullptr);
  switch (r.outcome) {
    case ColorizeOutcome::Done: return kExitOk;
    case ColorizeOutcome::NoInput:
      std::fprintf(stderr, "%s: %s\n", in.c_str(), makeError(err::kFileNotFound).what());
      return kExitRefused;
    default:
      std::fprintf(stderr, "%s\n", r.message().c_str());
      return kExitRefused;
  }
}

}  // namespace lathwick::cli
