#include "transform/operation_range.h"

namespace lathwick::transform {

std::string rangeLabel(const OperationRange& range) {
  if (range.allLines) return "Range= All Lines";
  return "Range= Line " + std::to_string(range.lines.first) + " to " + std::to_string(range.lines.last);
}

OperationRange operationRange(long textLength, long selectionStart, long selectionLength,
                              const LineFromChar& lineFromChar) {
  OperationRange r;
  r.lines.first = 1;
  r.lines.last = lineFromChar(textLength) + 1;
  if (selectionLength < 1) {
    r.allLines = true;
    r.firstChar = 0;
    r.lastChar = textLength;
  } else {
    r.allLines = false;
    r.firstChar = selectionStart;
    // Asked for the character after the selection start, so a selection that begins on a line
    // break (the end of a line) starts with the line after it.
    r.lines.first = lineFromChar(selectionStart + 1) + 1;
    r.lastChar = selectionStart + selectionLength;
    // The last selected character decides, so a selection ending just past a line break does
    // not take in the next line.
    r.lines.last = lineFromChar(r.lastChar - 1) + 1;
  }
  r.label = rangeLabel(r);
  return r;
}

std::string printableOnly(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  for (const char c : text) {
    const auto u = static_cast<unsigned char>(c);
    if (u >= 32 && u <= 126) out.push_back(c);
  }
  return out;
}

SearchDialogRange searchDialogRange(long textLength, long selectionStart, long selectionLength,
                                    const LineFromChar& lineFromChar, std::string_view selectedText) {
  SearchDialogRange s;
  s.range = operationRange(textLength, selectionStart, selectionLength, lineFromChar);
  if (!s.range.allLines && s.range.lines.first == s.range.lines.last) {
    s.fillFindText = true;
    s.findText = printableOnly(selectedText);
    s.range.allLines = true;
    s.range.lines.first = 1;
    s.range.lines.last = lineFromChar(textLength) + 1;
    s.range.firstChar = 0;
    s.range.lastChar = textLength;
    s.range.label = rangeLabel(s.range);
  }
  return s;
}

}  // namespace lathwick::transform
