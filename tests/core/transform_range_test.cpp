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
  const struct {
    long start, length, first, last;
    const char* label;
  } cases[] = {
      {9, 10, 2, 3, "Range= Line 2 to 3"},  // from inside line 2 to inside line 3
      {0, 16, 1, 2, "Range= Line 1 to 2"},  // lines 1 and 2 whole, break included: line 3 stays out
      {9, 3, 2, 2, "Range= Line 2 to 2"},   // one line stays a range for renumber and operate
  };
  for (const auto& c : cases) {
    const auto r = operationRange(static_cast<long>(kDoc.size()), c.start, c.length, linesOf(kDoc));
    SCOPED_TRACE(c.start);
    EXPECT_FALSE(r.allLines);
    EXPECT_EQ(r.lines.first, c.first);
    EXPECT_EQ(r.lines.last, c.last);
    EXPECT_EQ(r.firstChar, c.start);
    EXPECT_EQ(r.lastChar, c.start + c.length);
    EXPECT_EQ(r.label, c.label);
    EXPECT_FALSE(r.lines.contains(c.first - 1));
    EXPECT_FALSE(r.lines.contains(c.last + 1));
  }
}

TEST(OperationRange, SearchTakesAOneLineSelectionAsTheFindTextAndKeepsSeveralLinesAsARange) {
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
  const auto several = searchDialogRange(static_cast<long>(kDoc.size()), 9, 10, linesOf(kDoc), "x");
  EXPECT_FALSE(several.fillFindText);
  EXPECT_EQ(several.range.label, "Range= Line 2 to 3");
  EXPECT_EQ(printableOnly("a\x01\x7f\xff b~"), "a b~");
}

