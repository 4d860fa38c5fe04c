// Very long selections can come back from the control with a negative length.
#include <gtest/gtest.h>

#include "document/selection.h"

using lathwick::correctedSelectionLength;

TEST(SelectionLength, NegativeReportsAreRebuiltFromTheStart) {
  EXPECT_EQ(correctedSelectionLength(70000, -1000), 130072);
  EXPECT_EQ(correctedSelectionLength(0, -1), 65535);
  EXPECT_EQ(correctedSelectionLength(65536, -65536), 65536);
  EXPECT_EQ(correctedSelectionLength(70000, 0), 0);
  EXPECT_EQ(correctedSelectionLength(70000, 25), 25);
}
