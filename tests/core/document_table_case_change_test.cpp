// The title-case command's idea of a word.
#include <gtest/gtest.h>

#include "document/case_change.h"

using lathwick::properCase;

TEST(CaseChange, ProperCaseStartsWordsAfterBlanksAndBreaksOnly) {
  EXPECT_EQ(properCase("g01x10 y5"), "G01x10 Y5");
  EXPECT_EQ(properCase("TOOL\r\nONE\ttwo"), "Tool\r\nOne\tTwo");
  EXPECT_EQ(properCase("(tool one)"), "(tool One)");
  EXPECT_EQ(properCase(""), "");
}
