// The record of which stretches of a document keep the styles they were loaded with.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "document/style_pieces.h"

using lathwick::StylePieces;

namespace {
// The document's styles put together from its stretches: loaded ones from `loaded` (empty: all
// style 0), edited ones as 'e'.
std::string assembled(const StylePieces& pieces, std::string_view loaded, std::size_t length) {
  std::string out;
  std::size_t at = 0;
  for (const StylePieces::Stretch& s : pieces.stretches(length)) {
    EXPECT_EQ(s.at, at);
    at += s.count;
    if (!s.loaded) {
      out.append(s.count, 'e');
    } else if (loaded.empty()) {
      out.append(s.count, '\0');
    } else {
      out.append(loaded.substr(s.loadedStart, s.count));
    }
  }
  return out;
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
