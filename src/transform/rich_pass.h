#pragma once
// The pass shared by search/replace, highlight and operate: reads the input work file line by
// line, escapes each line for rich text, lets the operation change the lines in range, and
// writes the scheme's header, one "\li"/"\par\li" paragraph per line and the trailer. Shows
// progress for long documents and stops after the line in hand when the cancel flag is set.
#include <string>
#include <string_view>
#include <vector>

#include "platform/pass_monitor.h"
#include "transform/marker_insert.h"
#include "transform/operation_range.h"
#include "platform/pass_result.h"
#include "format/pass_frame.h"

namespace lathwick::transform {

class RichLineTransform {
 public:
  virtual ~RichLineTransform() = default;
  // `raw` is the line as read, `line` the same line already escaped. Changes `line`, lists the
  // changed stretches left to right in `marks` (empty on entry) and returns how many
  // replacements or operations it made (the pass's count). The pass writes the highlight
  // markers around the stretches as it writes the line.
  virtual long transform(std::string_view raw, std::string& line, std::vector<Stretch>& marks) = 0;
};

struct RichPassSettings {
  const char* statusText = "";   // "Replacing... [Esc] to cancel"
  const char* countPhrase = "";  // " Replacements made."
  const char* errorEnding = "";  // " occurred during the replacement of text."
  // The document's line count, which decides the progress display (over 200 lines, a step of
  // count / 100). Negative: count the input file's lines.
  long displayLineCount = -1;
};

// Runs the format check first: a file with line feeds but no CR LF pair is refused with the
// junk-filter message. The output is written (through a temporary file) only when the pass
// completes; `reload` is set when at least one change was made.
PassResult runRichPass(const std::string& inPath, const std::string& outPath, const PassFrame& frame,
                       const LineRange& range, RichLineTransform& transform, const RichPassSettings& settings,
                       PassMonitor& monitor);

// Lines of a work file as the line reader would split them (for the progress display).
long countWorkFileLines(const std::string& path);

}  // namespace lathwick::transform
