#pragma once
// The range of lines a transformation dialog acts on, taken from the document's selection when
// the dialog opens, and the text of its range label.
#include <climits>
#include <functional>
#include <string>
#include <string_view>

namespace lathwick::transform {

// 1-based, inclusive line numbers as the pass counts them while reading its input.
struct LineRange {
  long first = 1;
  long last = LONG_MAX;
  bool contains(long line) const { return line >= first && line <= last; }
};

struct OperationRange {
  LineRange lines;
  long firstChar = 0;  // 0-based character positions of the selection (whole text: 0 and length)
  long lastChar = 0;
  bool allLines = true;
  std::string label;   // "Range= All Lines" or "Range= Line 12 to 40"
};

// The document control's line-from-character query: 0-based line of a 0-based position.
using LineFromChar = std::function<long(long)>;

// `selectionLength` is the corrected selection length of the editor's line services.
OperationRange operationRange(long textLength, long selectionStart, long selectionLength,
                              const LineFromChar& lineFromChar);

// The search dialog's variant: a selection inside one line is the text to find, not a range.
struct SearchDialogRange {
  OperationRange range;
  bool fillFindText = false;  // true when `findText` should go into the find box
  std::string findText;       // the selected text with every character outside 32..126 removed
};
SearchDialogRange searchDialogRange(long textLength, long selectionStart, long selectionLength,
                                    const LineFromChar& lineFromChar, std::string_view selectedText);

std::string rangeLabel(const OperationRange& range);
std::string printableOnly(std::string_view text);  // keeps the characters 32 to 126

}  // namespace lathwick::transform
