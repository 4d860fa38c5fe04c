#include "transform/block_references.h"

#include <cctype>

#include "transform/search_match.h"

namespace lathwick::transform {

namespace {

bool isLetter(char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; }
bool isDigit(char c) { return c >= '0' && c <= '9'; }
bool isBlank(char c) { return c == ' ' || c == '\t'; }
char upper(char c) { return static_cast<char>(std::toupper(static_cast<unsigned char>(c))); }

bool sameWord(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (upper(a[i]) != upper(b[i])) return false;
  return true;
}

// Plain digits, with at most a point followed by zeros ("20", "0020", "20."), as a whole number.
std::optional<std::int64_t> wholeNumber(std::string_view text) {
  std::int64_t n = 0;
  size_t i = 0, digits = 0;
  for (; i < text.size() && isDigit(text[i]); ++i, ++digits) {
    if (n > 99'999'999'999'999'999LL / 10) return std::nullopt;
    n = n * 10 + (text[i] - '0');
  }
  if (digits == 0) return std::nullopt;
  if (i < text.size() && text[i] == '.')
    for (++i; i < text.size(); ++i)
      if (text[i] != '0') return std::nullopt;
  return i == text.size() ? std::optional<std::int64_t>(n) : std::nullopt;
}

size_t skipBlanks(std::string_view s, size_t i) {
  while (i < s.size() && isBlank(s[i])) ++i;
  return i;
}

// Index after the bracketed expression that starts at `i` (a "[").
size_t skipBrackets(std::string_view s, size_t i) {
  int depth = 0;
  for (; i < s.size(); ++i) {
    if (s[i] == '[') ++depth;
    if (s[i] == ']' && --depth == 0) return i + 1;
  }
  return i;
}

// One address word (a letter and its value) or the GOTO keyword with its target.
struct Word {
  char letter;  // upper case; '>' for GOTO
  size_t valueStart, valueLength;
  bool computed;
  std::string_view value;
  std::string_view written;  // the whole word as written
};

// The value after a letter: a number, or a parameter / bracketed expression (computed).
Word readValue(std::string_view s, size_t wordStart, size_t i, char letter) {
  i = skipBlanks(s, i);
  const size_t start = i;
  bool computed = false;
  if (i < s.size() && s[i] == '#') {
    computed = true;
    ++i;
    if (i < s.size() && s[i] == '[') i = skipBrackets(s, i);
    while (i < s.size() && (isDigit(s[i]) || s[i] == '<' || s[i] == '>' || isLetter(s[i]) || s[i] == '_')) ++i;
  } else if (i < s.size() && s[i] == '[') {
    computed = true;
    i = skipBrackets(s, i);
  } else {
    if (i < s.size() && (s[i] == '+' || s[i] == '-')) ++i;
    while (i < s.size() && (isDigit(s[i]) || s[i] == '.')) ++i;
  }
  return Word{letter, start, i - start, computed, s.substr(start, i - start), s.substr(wordStart, i - wordStart)};
}

// The code's words, in order; multi-letter names (SIN, EQ, SUB) and comments are passed over.
std::vector<Word> codeWords(std::string_view s, std::string_view commentStart) {
  std::vector<Word> words;
  const bool otherComment = !commentStart.empty() && commentStart != "(";
  size_t i = 0;
  while (i < s.size()) {
    const char c = s[i];
    if (c == ';' || (otherComment && s.compare(i, commentStart.size(), commentStart) == 0)) break;
    if (c == '(') {
      const size_t close = s.find(')', i);
      i = close == std::string_view::npos ? s.size() : close + 1;
      continue;
    }
    if (!isLetter(c)) {
      ++i;
      continue;
    }
    size_t end = i;
    while (end < s.size() && isLetter(s[end])) ++end;
    const std::string_view name = s.substr(i, end - i);
    if (name.size() == 1 || sameWord(name, "GOTO")) {
      words.push_back(readValue(s, i, end, name.size() == 1 ? upper(c) : '>'));
      i = words.back().valueStart + words.back().valueLength;
    } else {
      i = end;
    }
  }
  return words;
}

// G71 and G071 are the cycle; G71.1 is another code.
bool hasCode(const std::vector<Word>& words, char letter, std::int64_t code) {
  for (const Word& w : words)
    if (w.letter == letter && !w.computed && w.value.find('.') == std::string_view::npos &&
        wholeNumber(w.value) == code)
      return true;
  return false;
}

bool hasLetter(const std::vector<Word>& words, std::string_view letters) {
  for (const Word& w : words)
    if (letters.find(w.letter) != std::string_view::npos) return true;
  return false;
}

// The lathe cycle whose P and Q name the profile's blocks, or 0. G70 with X, Z, D or E and G73
// with Z or R are other forms (a subprogram profile counted by passes; peck drilling).
int profileCycle(const std::vector<Word>& words) {
  if (!hasLetter(words, "P") || !hasLetter(words, "Q")) return 0;
  for (int g = 70; g <= 73; ++g) {
    if (!hasCode(words, 'G', g)) continue;
    if (g == 70 && hasLetter(words, "XZDE")) return 0;
    if (g == 73 && hasLetter(words, "ZR")) return 0;
    return g;
  }
  return 0;
}

BlockReference makeReference(ReferenceKind kind, const Word& w, std::string text) {
  BlockReference r{kind, w.valueStart, w.valueLength, std::nullopt, w.computed, std::move(text)};
  if (!w.computed) r.target = wholeNumber(w.value);
  return r;
}

std::string ofCode(const Word& w, const char* code) { return std::string(w.written) + " of " + code; }

void addReferences(const std::vector<Word>& words, BlockWords& out) {
  const int cycle = profileCycle(words);
  const std::string cycleName = "G" + std::to_string(cycle);
  const bool m97 = hasCode(words, 'M', 97), m98 = hasCode(words, 'M', 98), m99 = hasCode(words, 'M', 99);
  const bool hasP = hasLetter(words, "P");
  for (const Word& w : words) {
    if (w.letter == '>') out.references.push_back(makeReference(ReferenceKind::Jump, w, std::string(w.written)));
    else if (cycle && w.letter == 'P') out.references.push_back(makeReference(ReferenceKind::CycleStart, w, ofCode(w, cycleName.c_str())));
    else if (cycle && w.letter == 'Q') out.references.push_back(makeReference(ReferenceKind::CycleEnd, w, ofCode(w, cycleName.c_str())));
    else if (m97 && w.letter == 'P') out.references.push_back(makeReference(ReferenceKind::LocalCall, w, ofCode(w, "M97")));
    else if (m99 && w.letter == 'P') out.references.push_back(makeReference(ReferenceKind::Return, w, ofCode(w, "M99")));
    else if (m98 && w.letter == 'P') out.references.push_back(makeReference(ReferenceKind::ProgramCall, w, ofCode(w, "M98")));
    else if (m98 && !hasP && w.letter == 'H') out.references.push_back(makeReference(ReferenceKind::SequenceCall, w, ofCode(w, "M98")));
  }
}

BlockWords scanOneBlock(std::string_view line, std::string_view commentStart) {
  BlockWords out;
  const std::vector<Word> words = codeWords(line, commentStart);
  std::optional<std::int64_t> program;
  for (const Word& w : words)
    if (w.letter == 'O' && !w.computed) {
      program = wholeNumber(w.value);
      break;
    }
  const size_t first = skipBlanks(line, 0);
  if (!program && first < line.size() && line[first] == ':') {
    size_t end = first + 1;
    while (end < line.size() && isDigit(line[end])) ++end;
    program = wholeNumber(line.substr(first + 1, end - first - 1));
  }
  if (program) out.programNumbers.push_back(*program);
  addReferences(words, out);
  return out;
}

}  // namespace

BlockWords scanBlock(std::string_view line, std::string_view commentStart) {
  BlockWords out;
  // A bare line feed inside a line (a file the junk filter has not seen) still ends a block:
  // the words on either side of it belong to different blocks.
  for (size_t start = 0; start <= line.size();) {
    size_t end = line.find('\n', start);
    if (end == std::string_view::npos) end = line.size();
    BlockWords block = scanOneBlock(line.substr(start, end - start), commentStart);
    out.programNumbers.insert(out.programNumbers.end(), block.programNumbers.begin(), block.programNumbers.end());
    for (BlockReference& r : block.references) {
      r.valueStart += start;
      out.references.push_back(std::move(r));
    }
    start = end + 1;
  }
  return out;
}

std::optional<std::int64_t> blockNumber(std::string_view line, std::string_view sequence,
                                        std::string_view commentStart) {
  const long s = positionOf(line, sequence);
  const long c = positionOf(line, commentStart);
  if (s == 0 || (c > 0 && c < s)) return std::nullopt;
  size_t end = static_cast<size_t>(s - 1) + sequence.size();
  const size_t start = end;
  while (end < line.size() && isDigit(line[end])) ++end;
  // A sign, point or other number character makes something that no reference can name.
  if (end < line.size() && line[end] >= 43 && line[end] <= 57) return std::nullopt;
  return wholeNumber(line.substr(start, end - start));
}

}  // namespace lathwick::transform
