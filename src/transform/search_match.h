#pragma once
// The match function of search/replace and highlight: where the next acceptable occurrence of
// the find text lies in a line, under the search method flags.
#include <cstddef>
#include <string_view>

namespace lathwick::transform {

// Search method flags, as the dialog's check boxes build them (index 0 is bit 4, index 2 bit 1).
inline constexpr int kMatchCase = 4;
inline constexpr int kWholeWord = 2;
inline constexpr int kExcludeComments = 1;

// 1-based position of the first occurrence of `needle` in `line`, compared exactly; 0 when it is
// absent or empty.
long positionOf(std::string_view line, std::string_view needle);

// 1-based position of the first occurrence of `needle` at or after 1-based `start`, 0 when none.
// An empty needle is never found. Without `matchCase` only ASCII letters ignore case.
long findFrom(std::string_view line, std::string_view needle, long start, bool matchCase);

// Returns the 1-based position of the occurrence found from `start`, or 0. An occurrence that
// fails the whole-word or comment test gives 0 as well, which ends the search of the line; the
// later occurrences of that line are not looked at. `open` and `close` are the 1-based positions
// of the line's first opening and first closing comment delimiter (0 when absent).
long matchInLine(std::string_view line, std::string_view find, long start, int flags, long open, long close);

// The same function over a line that a pass is rebuilding from left to right: `done` is the
// line as already changed, up to the point where the original `line` continues at index
// `cursor`; the search starts there. Positions compared with `open` and `close` are those of the
// changed line, exactly as if the replacements had been made in place. Returns the index in
// `line` of the accepted occurrence, or npos.
size_t matchInRebuiltLine(std::string_view line, size_t cursor, std::string_view done, std::string_view find,
                          int flags, long open, long close);

}  // namespace lathwick::transform
