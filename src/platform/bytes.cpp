#include "platform/bytes.h"

namespace lathwick {

char asciiUpper(char c) { return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c; }
char asciiLower(char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; }

std::string asciiUpper(std::string_view s) {
  std::string out(s);
  for (char& c : out) c = asciiUpper(c);
  return out;
}

std::string asciiLower(std::string_view s) {
  std::string out(s);
  for (char& c : out) c = asciiLower(c);
  return out;
}

bool equalsIgnoreCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (size_t i = 0; i < a.size(); ++i)
    if (asciiUpper(a[i]) != asciiUpper(b[i])) return false;
  return true;
}

bool endsWithIgnoreCase(std::string_view s, std::string_view suffix) {
  return s.size() >= suffix.size() && equalsIgnoreCase(s.substr(s.size() - suffix.size()), suffix);
}

std::string trimLeftBlanks(std::string_view s) {
  size_t b = 0;
  while (b < s.size() && s[b] == ' ') ++b;
  return std::string(s.substr(b));
}

std::string trimRightBlanks(std::string_view s) {
  size_t e = s.size();
  while (e > 0 && s[e - 1] == ' ') --e;
  return std::string(s.substr(0, e));
}

std::string trimBlanks(std::string_view s) { return trimLeftBlanks(trimRightBlanks(s)); }

bool likePattern(std::string_view text, std::string_view pattern) {
  // Iterative wildcard match with one backtrack point for the last "*".
  size_t t = 0, p = 0, starP = std::string_view::npos, starT = 0;
  while (t < text.size()) {
    if (p < pattern.size() && (pattern[p] == '?' ||
                               (pattern[p] == '#' && text[t] >= '0' && text[t] <= '9') ||
                               (pattern[p] != '*' && pattern[p] != '#' && pattern[p] == text[t]))) {
      ++t;
      ++p;
    } else if (p < pattern.size() && pattern[p] == '*') {
      starP = p++;
      starT = t;
    } else if (starP != std::string_view::npos) {
      p = starP + 1;
      t = ++starT;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

}  // namespace lathwick
