#include "document/case_change.h"

#include "platform/bytes.h"

namespace lathwick {

std::string properCase(std::string_view text) {
  std::string out(text);
  bool wordStart = true;
  for (char& c : out) {
    const bool separator = c == ' ' || c == '\t' || c == '\r' || c == '\n' || c == '\v' || c == '\f' || c == '\0';
    c = wordStart ? asciiUpper(c) : asciiLower(c);
    wordStart = separator;
  }
  return out;
}

}  // namespace lathwick
