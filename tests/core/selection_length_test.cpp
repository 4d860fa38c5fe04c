// The corrected selection length of the line model.
#include <gtest/gtest.h>

#include "document/selection_length.h"

using lathwick::correctedSelectionLength;
using lathwick::hasSelection;

TEST(SelectionLength, NegativeReportsAreRebuiltFromTheStart) {
  EXPECT_EQ(correctedSelectionLength(70000, -1000), 130072);
  EXPECT_EQ(correctedSelectionLength(0, -1), 65535);
  EXPECT_EQ(correctedSelectionLength(70000, 0), 0);
  EXPECT_EQ(correctedSelectionLength(70000, 25), 25);
  EXPECT_FALSE(hasSelection(5, 0));
  EXPECT_TRUE(hasSelection(70000, -1000));
}
