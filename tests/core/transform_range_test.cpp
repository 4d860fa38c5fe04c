// The operation range a transformation dialog takes from the selection, and its label.
#include <gtest/gtest.h>

#include <string>

#include "transform/operation_range.h"

using namespace lathwick::transform;

namespace {
// A document's line-from-character over its text, lines ended by CR LF as the control shows them.
LineFromChar linesOf(const std::string& text) {
  return [text](long pos) {
    long line = 0;
    for (long i = 0; i < pos && i < static_cast<long>(text.size()); ++i)
      if (text[i] == '\n') ++line;
    return line;
  };
}
const std::string kDoc = "G00 X0\r\nG01 X1\r\nG01 X2\r\nM30";  // lines start at 0, 8, 16, 24
}  // namespace

TEST(OperationRange, NoSelectionIsAllLines) {
  const auto r = operationRange(static_cast<long>(kDoc.size()), 5, 0, linesOf(kDoc));
  EXPECT_TRUE(r.allLines);
  EXPECT_EQ(r.label, "Range= All Lines");
  EXPECT_EQ(r.lines.first, 1);
  EXPECT_EQ(r.lines.last, 4);
  EXPECT_EQ(r.firstChar, 0);
  EXPECT_EQ(r.lastChar, static_cast<long>(kDoc.size()));
  EXPECT_TRUE(r.lines.contains(1) && r.lines.contains(4));
}

TEST(OperationRange, SelectionGivesLinesAndLabel) {
  // From inside line 2 to inside line 3.
  const auto r = operationRange(static_cast<long>(kDoc.size()), 9, 10, linesOf(kDoc));
  EXPECT_FALSE(r.allLines);
  EXPECT_EQ(r.lines.first, 2);
  EXPECT_EQ(r.lines.last, 3);
  EXPECT_EQ(r.firstChar, 9);
  EXPECT_EQ(r.lastChar, 19);
  EXPECT_EQ(r.label, "Range= Line 2 to 3");
  EXPECT_FALSE(r.lines.contains(1));
  EXPECT_FALSE(r.lines.contains(4));
}

TEST(OperationRange, SelectionEndingJustAfterALineBreakKeepsItsLastLine) {
  // Lines 1 and 2 selected whole, break included: the selection ends at position 16.
  const auto r = operationRange(static_cast<long>(kDoc.size()), 0, 16, linesOf(kDoc));
  EXPECT_EQ(r.lines.first, 1);
  EXPECT_EQ(r.lines.last, 2);
  EXPECT_EQ(r.label, "Range= Line 1 to 2");
}

TEST(OperationRange, RenumberAndOperateKeepAOneLineSelectionAsARange) {
  const auto r = operationRange(static_cast<long>(kDoc.size()), 9, 3, linesOf(kDoc));
  EXPECT_EQ(r.lines.first, 2);
  EXPECT_EQ(r.lines.last, 2);
  EXPECT_EQ(r.label, "Range= Line 2 to 2");
}

TEST(OperationRange, SearchTakesAOneLineSelectionAsTheFindTextWithoutControlCharacters) {
  const std::string doc = "G01\tX1\r\nY2";
  const auto s = searchDialogRange(static_cast<long>(doc.size()), 0, 6, linesOf(doc), "G01\tX1");
  EXPECT_TRUE(s.fillFindText);
  EXPECT_EQ(s.findText, "G01X1");
  EXPECT_TRUE(s.range.allLines);
  EXPECT_EQ(s.range.label, "Range= All Lines");
  EXPECT_EQ(s.range.lines.first, 1);
  EXPECT_EQ(s.range.lines.last, 2);
  EXPECT_EQ(s.range.firstChar, 0);
  EXPECT_EQ(s.range.lastChar, static_cast<long>(doc.size()));
}

TEST(OperationRange, SearchKeepsASelectionOverSeveralLinesAsARange) {
  const auto s = searchDialogRange(static_cast<long>(kDoc.size()), 9, 10, linesOf(kDoc), "x");
  EXPECT_FALSE(s.fillFindText);
  EXPECT_EQ(s.range.label, "Range= Line 2 to 3");
  EXPECT_EQ(printableOnly("a\x01\x7f\xff b~"), "a b~");
}
