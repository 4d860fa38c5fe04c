// verify A B: whether two programs command the same motion, both read as the colorizer reads
// them under the scheme of --scheme (comments, block skip). Exit 0 when they do; 1 with the
// first line of each where they part on stdout, or with the reason on stderr when a program
// cannot be read.
#include <cinttypes>
#include <cstdio>

#include "commands.h"
#include "format/pass_frame.h"
#include "workspace/toolpath_reading.h"
#include "extend/verify/motion_compare.h"
#include "format/scheme_data_file.h"
#include "options.h"
#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick::cli {

namespace {
void printWhere(const std::string& path, std::uint32_t line, std::uint64_t moves) {
  if (line == 0)
    std::printf("%s: ends after %" PRIu64 " moves\n", path.c_str(), moves);
  else
    std::printf("%s:%u: %s\n", path.c_str(), line, verify::programFileLine(path, line).c_str());
}
}  // namespace

int cmdVerify(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions({}), 2, "A and B");
  const long n = parseInteger("--scheme", p.valueOr("--scheme", "1"));
  if (n < 1) throw UsageError("option --scheme needs a record number from 1");
  const std::string& a = p.positionals()[0];
  const std::string& b = p.positionals()[1];
  for (const std::string& path : {a, b})
    if (!isRegularFile(path)) {
      std::fprintf(stderr, "%s: %s\n", path.c_str(), makeError(err::kFileNotFound).what());
      return kExitRefused;
    }
  verify::CompareOptions options;
  try {
    const auto comment = p.value("--comment");
    const SchemeRecord scheme = loadScheme(p.valueOr("--data", bundledDataFilePath()), n);
    options.model.reader = toolpathReaderOptions(makePassFrame(scheme, comment ? &*comment : nullptr));
  } catch (const DataFileProblem& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return kExitRefused;
  }
  const verify::MotionComparison r = verify::compareProgramFiles(a, b, options);
  if (r.same) return kExitOk;
  printWhere(a, r.lineA, r.moveNumber - 1);
  printWhere(b, r.lineB, r.moveNumber - 1);
  return kExitRefused;
}

}  // namespace lathwick::cli
