#include "extend/shell_words.h"

namespace lathwick::extend {

std::optional<std::vector<std::string>> splitShellWords(std::string_view text) {
  std::vector<std::string> words;
  std::string word;
  bool inWord = false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == ' ' || c == '\t' || c == '\r' || c == '\n') {
      if (inWord) words.push_back(std::move(word));
      word.clear();
      inWord = false;
      continue;
    }
    inWord = true;
    if (c == '\\') {
      if (++i >= text.size()) return std::nullopt;
      word += text[i];
    } else if (c == '\'') {
      const std::size_t close = text.find('\'', i + 1);
      if (close == std::string_view::npos) return std::nullopt;
      word += text.substr(i + 1, close - i - 1);
      i = close;
    } else if (c == '"') {
      for (++i;; ++i) {
        if (i >= text.size()) return std::nullopt;
        if (text[i] == '"') break;
        if (text[i] == '\\' && i + 1 < text.size() && std::string_view("$`\"\\\n").find(text[i + 1]) != std::string_view::npos)
          ++i;
        word += text[i];
      }
    } else {
      word += c;
    }
  }
  if (inWord) words.push_back(std::move(word));
  return words;
}

}  // namespace lathwick::extend
