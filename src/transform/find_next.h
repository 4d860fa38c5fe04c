#pragma once
// The search dialog's interactive state behind F3 (find next) and F4 (replace and find next).
// The dialog owns one and drives it against the document control through SearchTarget.
#include <string>
#include <string_view>

namespace lathwick::transform {

inline constexpr const char* kSearchComplete = "Search complete.";

// What the document control offers the interactive search.
class SearchTarget {
 public:
  virtual ~SearchTarget() = default;
  // Finds `text` in [start, end) with the control's own options (kWholeWord and kMatchCase; the
  // comment bit has no effect here), selects it and returns its 0-based start, or -1.
  virtual long find(std::string_view text, long start, long end, int flags) = 0;
  virtual long selectionLength() const = 0;
  // Replaces the selected text, giving it the document's normal text style.
  virtual void replaceSelection(std::string_view text) = 0;
};

enum class FindStep {
  ShowDialog,      // no find text: the dialog is to be shown
  Found,           // an occurrence is selected
  SearchComplete,  // nothing more: show kSearchComplete and close the dialog
};

class FindNextState {
 public:
  void setTexts(std::string findText, std::string replaceText);
  void setFlags(int flags) { flags_ = flags; }
  void setRange(long startChar, long endChar);  // also starts the search afresh
  void restart() { firstSearch_ = true; }

  FindStep findNext(SearchTarget& target);
  FindStep replaceAndFindNext(SearchTarget& target);

  const std::string& findText() const { return find_; }
  const std::string& replaceText() const { return replace_; }
  int flags() const { return flags_; }
  bool firstSearch() const { return firstSearch_; }
  long rangeStart() const { return rangeStart_; }
  long rangeEnd() const { return rangeEnd_; }
  long position() const { return position_; }

 private:
  std::string find_, replace_;
  int flags_ = 0;
  bool firstSearch_ = true;
  long rangeStart_ = 0;
  long rangeEnd_ = 0;
  long position_ = 0;
};

// The control's find on plain text, for a target that holds its text as bytes: whole word means
// no letter, digit or underscore on either side; case is ignored unless kMatchCase is set.
long findInText(std::string_view text, std::string_view find, long start, long end, int flags);

}  // namespace lathwick::transform
