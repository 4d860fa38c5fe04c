#pragma once
// The colorizer run: reads a plain program file line by line and writes it as rich text in the
// current scheme's styles, by modes or by codes. The editor runs it from its input work file
// to its output work file and then reloads the document; the batch tool runs the same code.
#include <string>

#include "format/colorizer_codes.h"
#include "format/scheme_record.h"
#include "platform/pass_monitor.h"
#include "platform/pass_result.h"

namespace lathwick {

inline constexpr const char* kProcessingStatus = "Processing... [Esc] to cancel";
// "The error N DESCRIPTION" and this: a runtime error stopped the output.
inline constexpr const char* kColorizeErrorEnding = " occurred during the creation of the formatted output file.";

// Colorizes inputPath into outputPath (written through a temporary file, only when the run
// completes: then `reload` is set and `count` is the number of lines written). No input file
// name, or no such file, is NoInput; bare line feeds are Refused with the junk-filter message.
// The scheme must have its fragments built. commentOverride, when given, replaces the scheme's
// comment text. Files of more than 200 lines report progress about a hundred
// times; files of 101 to 200 lines report, pump events and check the cancel flag after every
// line.
PassResult colorizeFile(const SchemeRecord& scheme, ColorizeView view, const std::string& inputPath,
                        const std::string& outputPath, PassMonitor& monitor,
                        const std::string* commentOverride = nullptr);

}  // namespace lathwick
