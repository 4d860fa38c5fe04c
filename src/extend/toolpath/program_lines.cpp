#include "extend/toolpath/program_lines.h"

namespace lathwick::toolpath {

void ProgramLines::feed(std::string_view bytes) {
  std::size_t pos = 0;
  if (afterCr_ && !bytes.empty()) {
    if (bytes.front() == '\n') pos = 1;
    afterCr_ = false;
  }
  while (pos < bytes.size()) {
    const char* from = bytes.data() + pos;
    const std::size_t left = bytes.size() - pos;
    std::size_t endAt = 0;
    while (endAt < left && from[endAt] != '\r' && from[endAt] != '\n') ++endAt;
    if (endAt == left) {
      partial_.append(from, left);
      return;
    }
    const std::string_view piece(from, endAt);
    if (partial_.empty()) {
      sink_(piece);
    } else {
      partial_.append(piece);
      sink_(partial_);
      partial_.clear();
    }
    pos += endAt + 1;
    if (from[endAt] == '\r') {
      if (pos < bytes.size()) {
        if (bytes[pos] == '\n') ++pos;
      } else {
        afterCr_ = true;
      }
    }
  }
}

void ProgramLines::finish() {
  if (!partial_.empty()) sink_(partial_);
  partial_.clear();
  afterCr_ = false;
}

}  // namespace lathwick::toolpath
