#pragma once
// A small backtracking regular-expression matcher for the RegExp object (the ECMAScript-3
// pattern language: classes, \d \w \s \b, greedy and lazy quantifiers, groups, (?:), look-ahead,
// back-references). It keeps its backtracking on the heap, so long subjects cannot exhaust the
// stack, and polls a callback so that a runaway match can be interrupted.
#include <bitset>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace lathwick::vbs {

class Regex {
 public:
  struct Options {
    bool ignoreCase = false;
    bool multiline = false;
  };
  // Throws ScriptError 5017..5021 for a bad pattern.
  Regex(std::string_view pattern, Options options);

  // Finds the first match starting at or after `from`. `groups` receives start/end byte
  // offsets (-1 when a group took no part) for the whole match and each group.
  bool search(const std::string& subject, size_t from, std::vector<int>& groups,
              const std::function<void()>& poll) const;
  int groupCount() const { return groups_; }

  enum class Op : unsigned char {
    Char, Any, Class, Split, Jmp, Save, Bol, Eol, WordB, NotWordB, Backref, Look, Match, Mark, Progress,
  };
  struct Inst {
    Op op;
    unsigned char c = 0;
    int x = 0, y = 0;
  };

 private:
  bool run(int pc, const std::string& s, size_t pos, std::vector<int>& caps, size_t& steps,
           const std::function<void()>& poll) const;

  std::vector<Inst> prog_;
  // Bytes every match contains: a subject lacking one after the start cannot match there.
  std::bitset<256> required_;
  std::vector<std::bitset<256>> classes_;
  int groups_ = 0;
  int marks_ = 0;
  Options opt_;
  friend class RegexCompiler;
  friend class RegexMatcher;
};

// The bytes as patterns see them: ASCII word characters, line breaks, ASCII case folding.
inline unsigned char lowerByte(unsigned char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<unsigned char>(c | 0x20) : c;
}
inline bool isWordByte(unsigned char c) {
  const unsigned char l = lowerByte(c);
  return (c >= '0' && c <= '9') || (l >= 'a' && l <= 'z') || c == '_';
}
inline bool isLineBreakByte(unsigned char c) { return c == '\n' || c == '\r'; }

}  // namespace lathwick::vbs
