#include "transform/search_match.h"

#include <cstring>

#include "platform/bytes.h"

namespace lathwick::transform {

namespace {

long findExact(std::string_view line, std::string_view needle, size_t from) {
  const size_t p = line.find(needle, from);
  return p == std::string_view::npos ? 0 : static_cast<long>(p) + 1;
}

long findIgnoringCase(std::string_view line, std::string_view needle, size_t from) {
  const char first = needle.front();
  const char upper = asciiUpper(first);
  const char lower = asciiLower(first);
  const size_t n = needle.size();
  if (line.size() < n) return 0;
  const size_t lastStart = line.size() - n;
  const char* data = line.data();
  for (size_t i = from; i <= lastStart; ++i) {
    const char c = data[i];
    if (c != upper && c != lower) continue;
    size_t k = 1;
    while (k < n && asciiUpper(data[i + k]) == asciiUpper(needle[k])) ++k;
    if (k == n) return static_cast<long>(i) + 1;
  }
  return 0;
}

}  // namespace

long findFrom(std::string_view line, std::string_view needle, long start, bool matchCase) {
  if (needle.empty() || start < 1 || static_cast<size_t>(start) > line.size()) return 0;
  const size_t from = static_cast<size_t>(start) - 1;
  return matchCase ? findExact(line, needle, from) : findIgnoringCase(line, needle, from);
}

long matchInLine(std::string_view line, std::string_view find, long start, int flags, long open, long close) {
  // Matching case replaces the first, case-blind search altogether, so only one of them runs.
  const long p = findFrom(line, find, start, (flags & kMatchCase) != 0);
  if (flags == 0) return p;
  if ((flags & kMatchCase) && p == 0) return 0;
  if ((flags & kWholeWord) && p >= 1) {
    const char before = p == 1 ? ' ' : line[p - 2];
    const size_t afterIndex = static_cast<size_t>(p - 1) + find.size();
    const char after = afterIndex < line.size() ? line[afterIndex] : ' ';
    if (before != ' ' || after != ' ') return 0;
  }
  if ((flags & kExcludeComments) && open < p && p < close) return 0;
  return p;
}

}  // namespace lathwick::transform
