// The part of a document a range of lines prints, for plain text and for rich text alike.
#include "document/print_pages.h"

namespace lathwick {

namespace {

// Offset where line `n` (1-based) starts; text.size() when there are fewer lines.
std::size_t lineStart(std::string_view text, long n) {
  std::size_t at = 0;
  for (long line = 1; line < n && at < text.size(); ++line) {
    const std::size_t end = text.find('\r', at);
    if (end == std::string_view::npos) return text.size();
    at = end + 1;
    if (at < text.size() && text[at] == '\n') ++at;
  }
  return at;
}

}  // namespace

std::string_view plainLinesOf(std::string_view text, long first, long last) {
  if (first < 1) first = 1;
  if (last < first) return {};
  const std::size_t start = lineStart(text, first);
  const std::size_t end = lineStart(text, last + 1);
  return text.substr(start, end - start);
}

RtfDocument richLinesOf(const RtfDocument& document, long first, long last) {
  const std::string_view lines = plainLinesOf(document.text, first, last);
  const std::size_t start = lines.data() - document.text.data();
  const std::size_t end = start + lines.size();
  RtfDocument out;
  out.fonts = document.fonts;
  out.formats = document.formats;
  out.indentTwips = document.indentTwips;
  out.text = std::string(lines);
  for (std::size_t i = 0; i < document.runs.size(); ++i) {
    const std::size_t runEnd = i + 1 < document.runs.size() ? document.runs[i + 1].start : document.text.size();
    if (runEnd <= start || document.runs[i].start >= end) continue;
    out.runs.push_back({document.runs[i].start > start ? document.runs[i].start - start : 0, document.runs[i].format});
  }
  return out;
}

}  // namespace lathwick
