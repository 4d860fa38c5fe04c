#pragma once
// The pass of the plain-text operations (renumber, add spaces, remove spaces): reads the input
// work file line by line and writes every line, changed or not, as plain text with CR LF. No
// escaping, no rich-text framing, no progress display.
#include <string>

#include "platform/pass_monitor.h"
#include "platform/pass_result.h"

namespace lathwick::transform {

class PlainLineTransform {
 public:
  virtual ~PlainLineTransform() = default;
  // Changes `line` (the 1-based `number`-th line of the input) in place; true when it changed.
  // May throw AppError, which fails the pass.
  virtual bool apply(long number, std::string& line) = 0;
};

struct PlainPassSettings {
  const char* statusText = "";      // "Renumbering file..."
  const char* failureMessage = "";  // "Unable to renumber file."
};

// On success `reload` is true (the output always goes back into the document) and `count` is
// the number of lines changed. On any error the output is not written and `message` holds the
// operation's failure text.
PassResult runPlainPass(const std::string& inPath, const std::string& outPath, PlainLineTransform& transform,
                        const PlainPassSettings& settings, PassMonitor& monitor);

}  // namespace lathwick::transform
