// F3 and F4: the interactive search state the search dialog drives.
#include <gtest/gtest.h>

#include "transform/find_next.h"
#include "transform/search_match.h"

using namespace lathwick::transform;

namespace {
// A document control over a plain string.
class TextTarget : public SearchTarget {
 public:
  explicit TextTarget(std::string t) : text(std::move(t)) {}
  long find(std::string_view what, long start, long end, int flags) override {
    ++finds;
    const long at = findInText(text, what, start, end, flags);
    if (at >= 0) selStart = at, selLength = static_cast<long>(what.size());
    else selLength = 0;
    return at;
  }
  long selectionLength() const override { return selLength; }
  void replaceSelection(std::string_view with) override {
    text.replace(static_cast<size_t>(selStart), static_cast<size_t>(selLength), with);
    selLength = static_cast<long>(with.size());
  }
  std::string text;
  long selStart = 0, selLength = 0;
  int finds = 0;
};
}  // namespace

TEST(FindNext, EmptyFindTextAsksForTheDialog) {
  TextTarget t("G01 X1");
  FindNextState s;
  EXPECT_EQ(s.findNext(t), FindStep::ShowDialog);
  EXPECT_EQ(t.finds, 0);
}

TEST(FindNext, WalksTheOccurrencesThenCompletesAndStartsAgain) {
  TextTarget t("X1 Y1 X1");
  FindNextState s;
  s.setTexts("x1", "");
  s.setRange(0, static_cast<long>(t.text.size()));
  EXPECT_EQ(s.findNext(t), FindStep::Found);
  EXPECT_EQ(t.selStart, 0);
  EXPECT_EQ(s.position(), 2);
  EXPECT_EQ(s.findNext(t), FindStep::Found);
  EXPECT_EQ(t.selStart, 6);
  EXPECT_EQ(s.findNext(t), FindStep::SearchComplete);
  EXPECT_TRUE(s.firstSearch());
  EXPECT_EQ(s.position(), 0);
  EXPECT_TRUE(s.findText().empty());  // the texts are cleared with the dialog
  s.setTexts("x1", "");
  EXPECT_EQ(s.findNext(t), FindStep::Found);
  EXPECT_EQ(t.selStart, 0);  // from the range start again
}

TEST(FindNext, ReplaceMovesTheRangeEndByTheLengthDifferenceAndWithoutASelectionOnlyFinds) {
  TextTarget t("X1 X1 Y1 X1");
  FindNextState s;
  s.setTexts("X1", "X100");
  s.setRange(0, 6);  // only the first two
  EXPECT_EQ(s.findNext(t), FindStep::Found);
  EXPECT_EQ(s.replaceAndFindNext(t), FindStep::Found);
  EXPECT_EQ(t.text, "X100 X1 Y1 X1");
  EXPECT_EQ(s.rangeEnd(), 8);
  EXPECT_EQ(t.selStart, 5);
  EXPECT_EQ(s.replaceAndFindNext(t), FindStep::SearchComplete);
  EXPECT_EQ(t.text, "X100 X100 Y1 X1");  // the one outside the range is left
  // Without a selection Replace only finds.
  TextTarget u("A X1");
  s.setTexts("X1", "X2");
  s.setRange(0, 4);
  EXPECT_EQ(s.replaceAndFindNext(u), FindStep::Found);
  EXPECT_EQ(u.text, "A X1");
  EXPECT_EQ(u.selStart, 2);
}

TEST(FindNext, ControlFindHonoursWholeWordAndCase) {
  EXPECT_EQ(findInText("X10 X1", "X1", 0, 6, kWholeWord), 4);
  EXPECT_EQ(findInText("x1 X1", "X1", 0, 5, kMatchCase), 3);
  EXPECT_EQ(findInText("x1 X1", "X1", 1, 5, 0), 3);
  EXPECT_EQ(findInText("X1 X1", "X1", 0, 4, 0), 0);
  EXPECT_EQ(findInText("Y2 X1", "X1", 0, 4, 0), -1);  // not wholly inside the range
}
