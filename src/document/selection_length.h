#pragma once
// The selection length as the line services take it. The original text control reported very
// long selections as a negative 16-bit-wrapped length; the true length is rebuilt from the
// selection start. A length of zero or more is taken as it is.
namespace lathwick {

constexpr long correctedSelectionLength(long selectionStart, long reportedLength) {
  if (reportedLength >= 0) return reportedLength;
  return ((selectionStart / 65536) + 1) * 65536 + reportedLength;
}

constexpr bool hasSelection(long selectionStart, long reportedLength) {
  return correctedSelectionLength(selectionStart, reportedLength) >= 1;
}

}  // namespace lathwick
