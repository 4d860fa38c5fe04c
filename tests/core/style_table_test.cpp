// Style numbers for distinct formats: reused, handed out around the control's own styles, and
// shared with the nearest format once they run out.
#include <gtest/gtest.h>

#include <set>

#include "document/style_table.h"

using lathwick::StyleFormat;
using lathwick::StyleTable;

TEST(StyleTable, SameFormatSameStyleAndTheDefaultIsStyleZero) {
  StyleTable table(StyleFormat{"Courier New", 20, 0, false, false, false});
  EXPECT_EQ(table.styleFor(StyleFormat{"Courier New", 20, 0, false, false, false}), 0);
  const int red = table.styleFor(StyleFormat{"Courier New", 20, 0xFF, true, false, false});
  EXPECT_EQ(red, 1);
  EXPECT_EQ(table.styleFor(StyleFormat{"Courier New", 20, 0xFF, true, false, false}), red);
  EXPECT_EQ(table.styleFor(StyleFormat{"Arial", 20, 0xFF, true, false, false}), 2);
  EXPECT_EQ(table.format(red).colour, 0xFFu);
}

TEST(StyleTable, GrowsAroundTheReservedStylesAndFallsBackToTheNearest) {
  StyleTable table;
  std::set<int> seen{0};
  for (int i = 1; i < StyleTable::kUsableStyles; ++i) {
    const int s = table.styleFor(StyleFormat{"Courier New", 20, static_cast<std::uint32_t>(i), false, false, false});
    EXPECT_TRUE(s < StyleTable::kFirstReserved || s > StyleTable::kLastReserved) << s;
    EXPECT_LT(s, StyleTable::kStyleCount);
    EXPECT_TRUE(seen.insert(s).second) << "style " << s << " handed out twice";
  }
  EXPECT_FALSE(table.overflowed());
  // Full: a new format shares the style with the same colour and weight rather than failing.
  const int near = table.styleFor(StyleFormat{"Arial", 22, 7, false, false, false});
  EXPECT_TRUE(table.overflowed());
  EXPECT_EQ(table.format(near).colour, 7u);
  EXPECT_EQ(table.styles().size(), static_cast<std::size_t>(StyleTable::kUsableStyles));
}
