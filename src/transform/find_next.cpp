#include "transform/find_next.h"

#include <algorithm>

#include "platform/bytes.h"
#include "transform/search_match.h"

namespace lathwick::transform {

void FindNextState::setTexts(std::string findText, std::string replaceText) {
  find_ = std::move(findText);
  replace_ = std::move(replaceText);
}

void FindNextState::setRange(long startChar, long endChar) {
  rangeStart_ = startChar;
  rangeEnd_ = endChar;
  firstSearch_ = true;
}

FindStep FindNextState::findNext(SearchTarget& target) {
  if (find_.empty()) return FindStep::ShowDialog;
  if (firstSearch_) {
    firstSearch_ = false;
    position_ = rangeStart_;
  }
  const long found = target.find(find_, position_, rangeEnd_, flags_ & (kWholeWord | kMatchCase));
  if (found < 0) {
    find_.clear();
    replace_.clear();
    firstSearch_ = true;
    position_ = 0;
    return FindStep::SearchComplete;
  }
  position_ = found + static_cast<long>(find_.size());
  return FindStep::Found;
}

FindStep FindNextState::replaceAndFindNext(SearchTarget& target) {
  const long delta = static_cast<long>(replace_.size()) - static_cast<long>(find_.size());
  rangeEnd_ += delta;
  if (target.selectionLength() > 0) {
    position_ += delta;
    target.replaceSelection(replace_);
  }
  return findNext(target);
}

namespace {
bool isWordCharacter(char c) {
  const char u = asciiUpper(c);
  return (u >= 'A' && u <= 'Z') || (c >= '0' && c <= '9') || c == '_';
}
}  // namespace

long findInText(std::string_view text, std::string_view find, long start, long end, int flags) {
  if (find.empty()) return -1;
  start = std::max(0L, start);
  end = std::min(static_cast<long>(text.size()), end);
  const bool matchCase = (flags & kMatchCase) != 0;
  const std::string_view window = text.substr(0, static_cast<size_t>(std::max(end, 0L)));
  long from = start + 1;
  for (;;) {
    const long p = findFrom(window, find, from, matchCase);
    if (p == 0) return -1;
    const long at = p - 1;
    const long after = at + static_cast<long>(find.size());
    if (!(flags & kWholeWord) ||
        ((at == 0 || !isWordCharacter(text[at - 1])) &&
         (after >= static_cast<long>(text.size()) || !isWordCharacter(text[after]))))
      return at;
    from = p + 1;
  }
}

}  // namespace lathwick::transform
