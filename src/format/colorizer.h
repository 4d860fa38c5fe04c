#pragma once
// The colorizer run: reads a plain program file line by line and writes it as rich text in the
// current scheme's styles, by modes or by codes. The editor runs it from its input work file
// to its output work file and then reloads the document; the batch tool runs the same code.
#include <cstdint>
#include <string>

#include "format/colorizer_codes.h"
#include "format/scheme_record.h"
#include "platform/pass_monitor.h"

namespace lathwick {

inline constexpr const char* kProcessingStatus = "Processing... [Esc] to cancel";
inline constexpr const char* kReadyStatus = "Press F1 for help.";
inline constexpr const char* kCancelMessage = "Operation canceled by user.";
inline constexpr const char* kCancelTitle = "Operation Incomplete.";

enum class ColorizeOutcome {
  Done,       // the output file is written: load it into the document
  NoInput,    // no input file name, or no such file: nothing happened
  Refused,    // bare line feeds: show kJunkFilterMessage; the document is left as it was
  Cancelled,  // the user cancelled: show kCancelMessage titled kCancelTitle; output not written
  Failed,     // an error stopped the output: show message(); output not written
};

struct ColorizeResult {
  ColorizeOutcome outcome = ColorizeOutcome::NoInput;
  long linesWritten = 0;
  std::int32_t backColour = 0;  // the document control's new background colour
  int errorNumber = 0;
  std::string errorDescription;

  // The text the editor shows for the outcome ("" for Done and NoInput).
  std::string message() const;
};

// "The error N DESCRIPTION occurred during the creation of the formatted output file."
std::string colorizeErrorMessage(int number, const std::string& description);

// Colorizes inputPath into outputPath (written through a temporary file, only when the run
// completes). The scheme must have its fragments built. commentOverride, when given, replaces
// the scheme's comment text. Files of more than 200 lines report progress about a hundred
// times; files of 101 to 200 lines report, pump events and check the cancel flag after every
// line.
ColorizeResult colorizeFile(const SchemeRecord& scheme, ColorizeView view, const std::string& inputPath,
                            const std::string& outputPath, PassMonitor& monitor,
                            const std::string* commentOverride = nullptr);

}  // namespace lathwick
