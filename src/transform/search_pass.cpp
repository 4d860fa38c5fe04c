#include "transform/search_pass.h"

#include "transform/rich_text_escape.h"
#include "transform/search_match.h"

namespace lathwick::transform {

ReplaceLine::ReplaceLine(std::string_view findText, std::string_view replaceText, int flags,
                         const PassFrame& frame)
    : find_(escapeRichText(findText)),
      replace_(escapeRichText(replaceText)),
      flags_(flags),
      open_(frame.comment.openText()),
      close_(frame.comment.closeText()),
      markStart_(frame.highlightStart),
      markEnd_(frame.highlightEnd) {}

long ReplaceLine::transform(std::string_view raw, std::string& line, std::vector<Stretch>& marks) {
  if (find_.empty()) return 0;
  const long open = positionOf(raw, open_);
  const long close = positionOf(raw, close_);
  // The line is rebuilt left to right into done_, which is what replacing each occurrence in
  // place would give, without moving the rest of a long line at every occurrence.
  done_.clear();
  size_t cursor = 0;
  for (;;) {
    const size_t at = matchInRebuiltLine(line, cursor, done_, find_, flags_, open, close);
    if (at == std::string::npos) break;
    done_.append(line, cursor, at - cursor);
    marks.push_back({done_.size(), done_.size() + replace_.size()});
    done_.append(replace_);
    cursor = at + find_.size();
  }
  if (marks.empty()) return 0;
  done_.append(line, cursor, std::string::npos);
  line.swap(done_);
  return static_cast<long>(marks.size());
}

long ReplaceLine::apply(std::string_view raw, std::string& line) {
  marks_.clear();
  const long n = transform(raw, line, marks_);
  insertMarkers(line, marks_, markStart_, markEnd_, scratch_);
  return n;
}

namespace {
PassResult runSearchPass(const std::string& inPath, const std::string& outPath, const SearchRequest& request,
                         const std::string& replaceText, const char* status, const PassFrame& frame,
                         PassMonitor& monitor) {
  ReplaceLine transform(request.findText, replaceText, request.flags, frame);
  RichPassSettings settings;
  settings.statusText = status;
  settings.countPhrase = request.findText == replaceText ? kHighlightsPhrase : kReplacementsPhrase;
  settings.errorEnding = kReplaceErrorEnding;
  settings.displayLineCount = request.displayLineCount;
  return runRichPass(inPath, outPath, frame, request.range, transform, settings, monitor);
}
}  // namespace

PassResult runReplaceAll(const std::string& inPath, const std::string& outPath, const SearchRequest& request,
                         const PassFrame& frame, PassMonitor& monitor) {
  return runSearchPass(inPath, outPath, request, request.replaceText, kReplacingStatus, frame, monitor);
}

PassResult runHighlightAll(const std::string& inPath, const std::string& outPath, const SearchRequest& request,
                           const PassFrame& frame, PassMonitor& monitor) {
  return runSearchPass(inPath, outPath, request, request.findText, kHighlightingStatus, frame, monitor);
}

std::string replaceCommandError(int number, const std::string& text) {
  return "Search/Replace Error " + std::to_string(number) + "; " + text;
}

std::string highlightCommandError(int number, const std::string& text) {
  return "Highlight Error " + std::to_string(number) + "; " + text;
}

}  // namespace lathwick::transform
