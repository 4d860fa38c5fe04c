#include "transform/rich_text_escape.h"

#include <cstring>

namespace lathwick::transform {

void appendEscaped(std::string_view text, std::string& out) {
  // Program lines seldom hold any of the three; three block searches find that out quickly.
  if (!std::memchr(text.data(), '\\', text.size()) && !std::memchr(text.data(), '{', text.size()) &&
      !std::memchr(text.data(), '}', text.size())) {
    out.append(text);
    return;
  }
  size_t from = 0;
  for (size_t i = 0; i < text.size(); ++i) {
    const char c = text[i];
    if (c == '\\' || c == '{' || c == '}') {
      out.append(text.data() + from, i - from);
      out.push_back('\\');
      out.push_back(c);
      from = i + 1;
    }
  }
  out.append(text.data() + from, text.size() - from);
}

std::string escapeRichText(std::string_view text) {
  std::string out;
  out.reserve(text.size() + 8);
  appendEscaped(text, out);
  return out;
}

}  // namespace lathwick::transform
