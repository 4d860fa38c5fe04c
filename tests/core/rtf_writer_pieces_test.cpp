// The writer hands a large document on in pieces of about a megabyte and a small one whole.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/rtf_reader.h"
#include "document/rtf_writer.h"

namespace {

using namespace lathwick;

constexpr std::size_t kMegabyte = 1 << 20;

std::vector<std::string> piecesOf(const std::string& text, const StyleTable& table) {
  std::vector<std::string> pieces;
  writeRtf({text, {}, nullptr, 0}, table, [&pieces](std::string_view piece) { pieces.emplace_back(piece); });
  return pieces;
}

std::string joined(const std::vector<std::string>& pieces) {
  std::string all;
  for (const auto& p : pieces) all += p;
  return all;
}

}  // namespace

TEST(RtfWriterPieces, ASmallDocumentComesWholeInOnePiece) {
  const StyleTable table(StyleFormat{"Courier New", 20, kAutoColour});
  const std::string text = "N10 G00 X0\r\nN20 {G01} X1.5\\\r\n%";
  const auto pieces = piecesOf(text, table);
  ASSERT_EQ(pieces.size(), 1u);
  EXPECT_EQ(pieces[0], writeRtf({text, {}, nullptr, 0}, table));
  EXPECT_EQ(readRtf(pieces[0]).text, text);
}

TEST(RtfWriterPieces, ALargeDocumentComesInPiecesOfAboutAMegabyte) {
  const StyleTable table(StyleFormat{"Courier New", 20, kAutoColour});
  std::string text;
  // Lines with escapes, and one plain stretch longer than a piece.
  for (int i = 0; text.size() < 3 * kMegabyte; ++i) text += "N" + std::to_string(i) + " G01 X{1} Y\\2 \xe9\r\n";
  text += std::string(kMegabyte + kMegabyte / 2, 'X');
  const auto pieces = piecesOf(text, table);
  ASSERT_GE(pieces.size(), 4u);
  for (std::size_t i = 0; i + 1 < pieces.size(); ++i) {
    EXPECT_GE(pieces[i].size(), kMegabyte) << "piece " << i;
    EXPECT_LE(pieces[i].size(), 2 * kMegabyte + 4096) << "piece " << i;
  }
  EXPECT_EQ(readRtf(joined(pieces)).text, text);
}
