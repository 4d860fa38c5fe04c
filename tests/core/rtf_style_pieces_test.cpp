// The record of which stretches of a document keep the styles they were loaded with.
#include <gtest/gtest.h>

#include "document/style_pieces.h"

using lathwick::StylePieces;

namespace {
// Edited stretches read back as 'e'.
std::string assembled(const StylePieces& pieces, std::string_view loaded, std::size_t length) {
  return pieces.assemble(loaded, length, [](std::size_t, std::size_t n, char* out) { std::fill(out, out + n, 'e'); });
}
}  // namespace

TEST(StylePieces, EditsKeepTheLoadedStylesAroundThem) {
  StylePieces p;
  p.reset(10);
  EXPECT_TRUE(p.unchanged(10));
  EXPECT_EQ(assembled(p, "0123456789", 10), "0123456789");
  p.erase(2, 3);   // 01 56789
  p.insert(2, 2);  // 01ee56789
  p.insert(4, 1);  // typing on joins the edited stretch
  EXPECT_FALSE(p.unchanged(10));
  EXPECT_EQ(p.pieceCount(), 3u);
  EXPECT_EQ(assembled(p, "0123456789", 10), "01eee56789");
  p.erase(0, 10);
  EXPECT_EQ(assembled(p, "0123456789", 0), "");
  p.insert(0, 2);
  EXPECT_EQ(assembled(p, "0123456789", 2), "ee");
}

TEST(StylePieces, PlainTextLoadsAreAllStyleZero) {
  StylePieces p;
  p.reset(4);
  p.insert(4, 1);
  EXPECT_EQ(assembled(p, "", 5), std::string(4, '\0') + "e");
  p.erase(1, 2);
  EXPECT_EQ(assembled(p, "", 3), std::string(2, '\0') + "e");
}
