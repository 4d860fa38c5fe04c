#include "format/g_words.h"

namespace lathwick {

std::size_t numberEnd(std::size_t start, std::string_view line, std::string_view word) {
  std::size_t pos = inStr(start, line, word) + word.size();
  while (pos >= 1 && pos <= line.size()) {
    const unsigned char c = static_cast<unsigned char>(line[pos - 1]);
    if (!((c >= 45 && c <= 57) || c == 43)) break;
    ++pos;
  }
  return pos;
}

void GWordFinder::normalise(std::string_view line) {
  if (cached_) return;
  normal_.assign(2 * line.size(), ' ');
  std::size_t letters = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    const char c = line[i];
    if (c >= 'A' && c <= 'Z') {
      ++letters;
      normal_[i + letters] = c;  // 1-based position i+1+letters, so each letter gets a blank before it
    } else if (c >= '0' && c <= '9') {
      normal_[i + letters] = c;
    }
  }
  cached_ = true;
}

namespace {

// True when `word` followed by a blank occurs in `text`.
bool followedByBlank(std::string_view text, std::string_view word) {
  for (std::size_t at = inStr(1, text, word); at != 0; at = inStr(at + 1, text, word)) {
    const std::size_t after = at - 1 + word.size();  // 0-based, just after the occurrence
    if (after < text.size() && text[after] == ' ') return true;
  }
  return false;
}

}  // namespace

std::size_t GWordFinder::find(std::string_view line, std::string_view longForm, std::string_view shortForm) {
  matchLength_ = 0;
  const std::size_t longAt = inStr(1, line, longForm);
  if (longAt == 0 && (shortForm.empty() || inStr(1, line, shortForm) == 0)) return 0;
  normalise(line);
  if (longAt != 0 && followedByBlank(normal_, longForm)) {
    matchLength_ = longForm.size();
    return longAt;
  }
  if (!shortForm.empty() && followedByBlank(normal_, shortForm)) {
    matchLength_ = shortForm.size();
    return inStr(1, line, shortForm);
  }
  return 0;
}

}  // namespace lathwick
