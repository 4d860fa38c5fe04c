#include "transform_common.h"

#include <cstdio>

#include "format/pass_frame.h"
#include "format/scheme_data_file.h"
#include "platform/bytes.h"
#include "transform/search_match.h"

namespace lathwick::cli {

std::vector<OptionSpec> withRangeOption(std::vector<OptionSpec> specs) {
  specs.push_back({"--lines", true, false});
  return withSchemeOptions(std::move(specs));
}

namespace {
SchemeRecord schemeFromOptions(const ParsedArgs& args) {
  const std::string dataFile = args.valueOr("--data", bundledDataFilePath());
  const long n = parseInteger("--scheme", args.valueOr("--scheme", "1"));
  if (n < 1) throw UsageError("option --scheme needs a record number from 1");
  return loadScheme(dataFile, n);
}
}  // namespace

PassFrame frameFromOptions(const ParsedArgs& args) {
  const SchemeRecord record = schemeFromOptions(args);
  const std::optional<std::string> comment = args.value("--comment");
  return makePassFrame(record, comment ? &*comment : nullptr);
}

std::string commentStartFromOptions(const ParsedArgs& args) {
  if (const auto comment = args.value("--comment")) return trimBlanks(*comment);
  return trimBlanks(schemeFromOptions(args).style(0, kCommentStyle).marker);
}

transform::LineRange rangeFromOptions(const ParsedArgs& args) {
  transform::LineRange range;
  if (const auto lines = args.value("--lines")) {
    const auto [first, last] = parseLineRange(*lines);
    range.first = first;
    range.last = last;
  }
  return range;
}

std::vector<OptionSpec> searchOptionSpecs(bool withReplace) {
  std::vector<OptionSpec> specs = {{"--find", true, true},
                                   {"--match-case", false, false},
                                   {"--whole-word", false, false},
                                   {"--exclude-comments", false, false}};
  if (withReplace) specs.push_back({"--replace", true, true});
  return withRangeOption(specs);
}

transform::SearchRequest searchRequestFrom(const ParsedArgs& args) {
  transform::SearchRequest req;
  req.findText = *args.value("--find");
  req.replaceText = args.valueOr("--replace", req.findText);
  req.flags = (args.flag("--match-case") ? transform::kMatchCase : 0) |
              (args.flag("--whole-word") ? transform::kWholeWord : 0) |
              (args.flag("--exclude-comments") ? transform::kExcludeComments : 0);
  req.range = rangeFromOptions(args);
  req.displayLineCount = 0;  // no progress display in the batch tool
  return req;
}

int finishPass(const PassResult& result, bool printCount, const std::string& inPath) {
  return finishPass(result, printCount, FileJob{inPath, "", inPath, stdout, ""});
}

int finishPass(const PassResult& result, bool printCount, const FileJob& job) {
  const char* prefix = job.countPrefix.c_str();
  switch (result.outcome) {
    case PassOutcome::Completed:
      if (printCount) std::fprintf(job.countStream, "%s%s\n", prefix, result.statusLabel.c_str());
      return kExitOk;
    case PassOutcome::NoInput:
      std::fprintf(stderr, "%s: %s\n", result.errorDescription.c_str(), job.name.c_str());
      return kExitRefused;
    case PassOutcome::Failed:
      std::fprintf(stderr, "%s%s\n", prefix, result.message.c_str());
      // The plain passes' texts do not say what went wrong; the runtime error does.
      if (result.message.find(result.errorDescription) == std::string::npos)
        std::fprintf(stderr, "(error %d: %s)\n", result.errorNumber, result.errorDescription.c_str());
      return kExitRefused;
    case PassOutcome::Refused:
    case PassOutcome::Cancelled:
      std::fprintf(stderr, "%s%s\n", prefix, result.message.c_str());
      return kExitRefused;
  }
  return kExitRefused;
}

}  // namespace lathwick::cli
