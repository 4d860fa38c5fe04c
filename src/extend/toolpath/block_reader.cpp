#include "extend/toolpath/block_reader.h"

#include <charconv>
#include <cmath>
#include <cstdio>


namespace lathwick::toolpath {

namespace {

bool isLetter(char c) { return c >= 'A' && c <= 'Z'; }
bool isBlank(char c) { return c == ' ' || c == '\t' || c == '%'; }
// The characters the colorizer's number rule takes after a word's letter.
bool isNumberChar(char c) { return (c >= '-' && c <= '9') || c == '+'; }
bool isPrintable(char c) {
  const auto u = static_cast<unsigned char>(c);
  return u > 32 && u < 127;
}
// Characters of macro expressions: once one appears, the line's words cannot be trusted.
bool isMacroChar(char c) { return c == '#' || c == '[' || c == ']' || c == '=' || c == '<' || c == '>'; }

}  // namespace

bool parseWordNumber(std::string_view text, double& value) {
  if (text.empty()) return false;
  bool negative = false;
  if (text.front() == '+' || text.front() == '-') {
    negative = text.front() == '-';
    text.remove_prefix(1);
  }
  if (text.empty() || !((text.front() >= '0' && text.front() <= '9') || text.front() == '.')) return false;
  double v = 0;
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), v, std::chars_format::fixed);
  if (ec != std::errc() || end != text.data() + text.size() || !std::isfinite(v) || v >= 1e9) return false;
  value = negative ? -v : v;
  return true;
}

BlockRead BlockReader::read(std::string_view line, std::vector<Word>& words, std::vector<std::string>& problems) {
  words.clear();
  problems.clear();
  upper_.assign(line);
  for (char& c : upper_)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 'a' + 'A');
  BlockRead result;
  if (!options_.blockSkip.empty()) {
    // Found within the first four characters (its first occurrence, as the colorizer looks).
    const std::size_t at = upper_.find(options_.blockSkip);
    if (at != std::string::npos && at < 4) {
      result.skipped = true;
      return result;
    }
  }
  std::size_t i = 0;
  while (i < upper_.size() && !result.unreliable) {  // past macro text nothing can be trusted
    const char c = upper_[i];
    if (options_.comment.active && c == options_.comment.open) {
      i = skipComment(i);
    } else if (c == ';') {
      break;
    } else if (isBlank(c)) {
      ++i;
    } else if (isLetter(c)) {
      i = readWord(i, words, problems, result);
    } else {
      i = readOther(i, problems, result);
    }
  }
  return result;
}

std::size_t BlockReader::skipComment(std::size_t at) const {
  const std::size_t close = upper_.find(options_.comment.close, at + 1);
  return close == std::string::npos ? upper_.size() : close + 1;
}

std::size_t BlockReader::readWord(std::size_t at, std::vector<Word>& words, std::vector<std::string>& problems,
                                  BlockRead& result) const {
  std::size_t end = at + 1;
  while (end < upper_.size() && isNumberChar(upper_[end])) ++end;
  if (end == at + 1 && end < upper_.size() && isLetter(upper_[end])) {
    // Two letters in a row: a keyword of a macro language (SUB, IF, GOTO ...).
    while (end < upper_.size() && isLetter(upper_[end])) ++end;
    problems.push_back("unsupported " + upper_.substr(at, end - at));
    result.unreliable = true;
    return end;
  }
  const std::string_view text(upper_.data() + at, end - at);
  Word w{upper_[at], 0, text};
  if (parseWordNumber(text.substr(1), w.value)) {
    words.push_back(w);
  } else if (end < upper_.size() && isMacroChar(upper_[end])) {
    return readOther(at, problems, result);  // "X#1", "O<NAME>": macro text from the letter on
  } else {
    problems.push_back("bad number " + std::string(text));
  }
  return end;
}

std::size_t BlockReader::readOther(std::size_t at, std::vector<std::string>& problems, BlockRead& result) const {
  const char c = upper_[at];
  if (!isPrintable(c)) {
    char text[32];
    std::snprintf(text, sizeof text, "unreadable byte 0x%02X", static_cast<unsigned>(static_cast<unsigned char>(c)));
    problems.emplace_back(text);
    return at + 1;
  }
  if (isNumberChar(c)) {  // a number with no letter before it
    std::size_t end = at + 1;
    while (end < upper_.size() && isNumberChar(upper_[end])) ++end;
    problems.push_back("unsupported " + upper_.substr(at, end - at));
    return end;
  }
  if (!isMacroChar(c) && !isLetter(c)) {
    problems.push_back("unsupported " + upper_.substr(at, 1));
    return at + 1;
  }
  // Macro text runs to the next blank or comment.
  std::size_t end = at + 1;
  while (end < upper_.size() && isPrintable(upper_[end]) && !(options_.comment.active && upper_[end] == options_.comment.open))
    ++end;
  problems.push_back("unsupported " + upper_.substr(at, end - at));
  result.unreliable = true;
  return end;
}

}  // namespace lathwick::toolpath
