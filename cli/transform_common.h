#pragma once
// What the transformation subcommands share: the scheme's pieces for the rich-text passes, the
// comment-start text, the operation range, and turning a pass's outcome into output and an exit
// status.
#include <string>
#include <vector>

#include "file_args.h"
#include "options.h"
#include "transform/operation_range.h"
#include "platform/pass_result.h"
#include "format/pass_frame.h"
#include "transform/search_pass.h"

namespace lathwick::cli {

// Options of the rich-text passes and of the plain passes that use the comment-start text.
std::vector<OptionSpec> withRangeOption(std::vector<OptionSpec> specs);

// The scheme data file's problems (DataFileProblem) are AppErrors: main reports them, exit 1.

// Header, trailer, indent, markers and comment delimiters of --scheme in --data, with the
// comment text of --comment when given.
PassFrame frameFromOptions(const ParsedArgs& args);

// The comment-start text: --comment when given (no data file is read then), otherwise the
// scheme's comment text (set 0, style 10), trimmed.
std::string commentStartFromOptions(const ParsedArgs& args);

// --lines A-B, or every line.
transform::LineRange rangeFromOptions(const ParsedArgs& args);

// replace and highlight: their options and the request they give.
std::vector<OptionSpec> searchOptionSpecs(bool withReplace);
transform::SearchRequest searchRequestFrom(const ParsedArgs& args);

// Prints the count line (when `printCount`) or the message, and gives the exit status.
int finishPass(const PassResult& result, bool printCount, const std::string& inPath);
// The same for one job of forEachFile: the count line goes where the job says, and with
// --in-place the count and the message start with the file's name.
int finishPass(const PassResult& result, bool printCount, const FileJob& job);

}  // namespace lathwick::cli
