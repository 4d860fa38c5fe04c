#pragma once
// Word finding on program lines, with 1-based positions (0 = not found) as the colorizer's rules
// count them.
#include <cstddef>
#include <string>
#include <string_view>

namespace lathwick {

// Position of t in s at or after 1-based start, or 0. An empty s, or a start past its end, gives
// 0; an empty t is found at start.
inline std::size_t inStr(std::size_t start, std::string_view s, std::string_view t) {
  if (start < 1) start = 1;
  if (s.empty() || start > s.size()) return 0;
  if (t.empty()) return start;
  if (t.size() > s.size()) return 0;
  // Program lines and the texts sought are short: a plain loop costs less than the library's
  // search, which the colorizer would call some thirty times a line.
  const char first = t.front();
  const std::size_t last = s.size() - t.size();
  for (std::size_t i = start - 1; i <= last; ++i) {
    if (s[i] != first) continue;
    std::size_t k = 1;
    while (k < t.size() && s[i + k] == t[k]) ++k;
    if (k == t.size()) return i + 1;
  }
  return 0;
}

// The first position after the number that follows `word` (searched in line from start):
// "-", ".", "/", "0"-"9" and "+" belong to the number.
std::size_t numberEnd(std::size_t start, std::string_view line, std::string_view word);

// Finds whole G words such as "G01" in an upper-case line. A word counts only when it stands
// whole in the line's normal form (letters preceded by a blank, other characters blanked), but
// the position returned is that of the first occurrence of the text in the line, which may lie
// inside another word ("G10 G1" gives G1 at position 1). The normal form is made once per line
// and kept for the following tests until reset() says a new line has come.
class GWordFinder {
 public:
  void reset() { cached_ = false; }
  // Returns the position, or 0; matchLength() is then the length of the form that matched.
  std::size_t find(std::string_view upperLine, std::string_view longForm, std::string_view shortForm);
  std::size_t matchLength() const { return matchLength_; }

 private:
  void normalise(std::string_view upperLine);
  std::string normal_;
  bool cached_ = false;
  std::size_t matchLength_ = 0;
};

}  // namespace lathwick
