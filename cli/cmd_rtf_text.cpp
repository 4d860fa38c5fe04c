// rtf-text FILE: the plain text of an RTF file as the editor's reader loads it, paragraphs
// separated by CR LF, for checking the reader against documents from other programs.
#include <cstdio>

#include "commands.h"
#include "document/file_errors.h"
#include "document/rtf_reader.h"
#include "options.h"
#include "platform/errors.h"

namespace lathwick::cli {

int cmdRtfText(const Args& args) {
  const ParsedArgs parsed = ParsedArgs::parse(args, {}, 1, "FILE");
  try {
    const RtfDocument doc = readRtfFile(parsed.positionals().front());
    std::fwrite(doc.text.data(), 1, doc.text.size(), stdout);
    return std::fflush(stdout) == 0 ? kExitOk : kExitRefused;
  } catch (const AppError& e) {
    std::fprintf(stderr, "%s\n", FileErrorText(e.number(), e.description()).c_str());
    return kExitRefused;
  }
}

}  // namespace lathwick::cli
