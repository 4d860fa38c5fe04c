// scheme list|header|dump: the records of a scheme data file as the editor reads them; the
// editing actions are in cmd_scheme_edit.cpp.
#include <cstdio>
#include <string>

#include "commands.h"
#include "format/scheme_data_file.h"
#include "options.h"
#include "platform/bytes.h"
#include "format/scheme_json.h"

namespace lathwick::cli {

namespace {

int listSchemes(const std::string& dataFile) {
  const SchemeList list = loadSchemeList(dataFile, 1);
  for (const auto& e : list.entries) std::printf("%ld\t%s\n", e.record, e.name.c_str());
  if (list.dataFileProblem) {
    std::fprintf(stderr, "%s\n", kDataFileProblemMessage);
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace

int cmdScheme(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions(schemeEditOptions()), -1, "ACTION");
  if (p.positionals().empty()) throw UsageError("missing ACTION: list, header, dump, new, copy, set or delete");
  const std::string action = p.positionals().front();
  if (action == "new" || action == "copy" || action == "set" || action == "delete") {
    try {
      return editScheme(p);
    } catch (const DataFileProblem& e) {
      std::fprintf(stderr, "%s\n", e.what());
      return kExitRefused;
    }
  }
  if (action != "list" && action != "header" && action != "dump")
    throw UsageError("unknown action '" + action + "': expected list, header, dump, new, copy, set or delete");
  if (p.positionals().size() != 1) throw UsageError("scheme " + action + " takes no argument");
  const std::string dataFile = p.valueOr("--data", bundledDataFilePath());
  const long n = parseInteger("--scheme", p.valueOr("--scheme", "1"));
  if (action == "list") return listSchemes(dataFile);
  try {
    const SchemeRecord record = readSchemeRecord(dataFile, n);
    const std::string text = action == "header" ? trimRightBlanks(record.rtfHeader) : schemeJson(record, n);
    std::fwrite(text.data(), 1, text.size(), stdout);
    std::fputc('\n', stdout);
  } catch (const DataFileProblem& e) {
    std::fprintf(stderr, "%s\n", e.what());
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace lathwick::cli
