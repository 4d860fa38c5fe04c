#include "transform/search_match.h"

#include "platform/bytes.h"

namespace lathwick::transform {

namespace {

constexpr size_t kNone = std::string_view::npos;

size_t findIgnoringCase(std::string_view line, std::string_view needle, size_t from) {
  const size_t n = needle.size();
  if (line.size() < n) return kNone;
  const char upper = asciiUpper(needle.front());
  const char lower = asciiLower(needle.front());
  const size_t lastStart = line.size() - n;
  const char* data = line.data();
  for (size_t i = from; i <= lastStart; ++i) {
    const char c = data[i];
    if (c != upper && c != lower) continue;
    size_t k = 1;
    while (k < n && asciiUpper(data[i + k]) == asciiUpper(needle[k])) ++k;
    if (k == n) return i;
  }
  return kNone;
}

size_t findIndex(std::string_view line, std::string_view needle, size_t from, bool matchCase) {
  if (needle.empty() || from >= line.size()) return kNone;
  return matchCase ? line.find(needle, from) : findIgnoringCase(line, needle, from);
}

}  // namespace

long positionOf(std::string_view line, std::string_view needle) {
  if (needle.empty()) return 0;
  const size_t p = line.find(needle);
  return p == std::string_view::npos ? 0 : static_cast<long>(p) + 1;
}

long findFrom(std::string_view line, std::string_view needle, long start, bool matchCase) {
  if (start < 1) return 0;
  const size_t i = findIndex(line, needle, static_cast<size_t>(start) - 1, matchCase);
  return i == kNone ? 0 : static_cast<long>(i) + 1;
}

size_t matchInRebuiltLine(std::string_view line, size_t cursor, std::string_view done, std::string_view find,
                          int flags, long open, long close) {
  // Matching case replaces the first, case-blind search altogether, so only one of them runs.
  const size_t i = findIndex(line, find, cursor, (flags & kMatchCase) != 0);
  if (i == kNone || flags == 0) return i;
  // 1-based position of the occurrence in the line as changed so far.
  const long p = static_cast<long>(done.size() + (i - cursor)) + 1;
  if (flags & kWholeWord) {
    char before = ' ';
    if (p > 1) before = i == cursor ? done.back() : line[i - 1];
    const size_t afterIndex = i + find.size();
    const char after = afterIndex < line.size() ? line[afterIndex] : ' ';
    if (before != ' ' || after != ' ') return kNone;
  }
  if ((flags & kExcludeComments) && open < p && p < close) return kNone;
  return i;
}

long matchInLine(std::string_view line, std::string_view find, long start, int flags, long open, long close) {
  if (start < 1) return 0;
  const size_t cursor = std::min(static_cast<size_t>(start) - 1, line.size());
  const size_t i = matchInRebuiltLine(line, cursor, line.substr(0, cursor), find, flags, open, close);
  return i == kNone ? 0 : static_cast<long>(i) + 1;
}

}  // namespace lathwick::transform
