#pragma once
// Replace All and Highlight All: one pass over the range that replaces every accepted occurrence
// of the find text and marks it in the highlight colour. Highlighting is replacing a text with
// itself, so the text stays and only gains colour.
#include <string>
#include <string_view>
#include <vector>

#include "platform/pass_monitor.h"
#include "transform/marker_insert.h"
#include "transform/operation_range.h"
#include "platform/pass_result.h"
#include "transform/rich_pass.h"
#include "format/pass_frame.h"

namespace lathwick::transform {

inline constexpr const char* kReplacingStatus = "Replacing... [Esc] to cancel";
inline constexpr const char* kHighlightingStatus = "Highlighting... [Esc] to cancel";
inline constexpr const char* kReplacementsPhrase = " Replacements made.";
inline constexpr const char* kHighlightsPhrase = " Highlights made.";
inline constexpr const char* kReplaceErrorEnding = " occurred during the replacement of text.";

struct SearchRequest {
  std::string findText;     // as the user typed it; escaped by the pass
  std::string replaceText;  // ignored by the highlight pass
  int flags = 0;            // kMatchCase | kWholeWord | kExcludeComments
  LineRange range;
  long displayLineCount = -1;  // see RichPassSettings
};

// The per-line work, usable on its own: replaces the accepted occurrences in an escaped line and
// marks them. `raw` is the line before escaping (the comment delimiters are looked up there).
class ReplaceLine : public RichLineTransform {
 public:
  ReplaceLine(std::string_view findText, std::string_view replaceText, int flags, const PassFrame& frame);
  long transform(std::string_view raw, std::string& line, std::vector<Stretch>& marks) override;
  // The same with the markers put into the line.
  long apply(std::string_view raw, std::string& line);

 private:
  std::string find_, replace_;  // escaped
  int flags_;
  std::string open_, close_, markStart_, markEnd_;
  std::vector<Stretch> marks_;
  std::string done_, scratch_;
};

PassResult runReplaceAll(const std::string& inPath, const std::string& outPath, const SearchRequest& request,
                         const PassFrame& frame, PassMonitor& monitor);
PassResult runHighlightAll(const std::string& inPath, const std::string& outPath, const SearchRequest& request,
                           const PassFrame& frame, PassMonitor& monitor);

// The dialog's own error texts around a pass that could not start.
std::string replaceCommandError(int number, const std::string& text);    // "Search/Replace Error 5; ..."
std::string highlightCommandError(int number, const std::string& text);  // "Highlight Error 5; ..."

}  // namespace lathwick::transform
