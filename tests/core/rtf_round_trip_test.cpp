// What the writer saves, the reader loads back with the same text and formats.
#include <gtest/gtest.h>

#include "document/rtf_reader.h"
#include "document/rtf_styling.h"
#include "document/rtf_writer.h"

namespace {

using namespace lathwick;

StyleFormat makeFormat(std::string font, int halfPoints, std::uint32_t colour, bool b = false, bool i = false,
                       bool u = false) {
  return StyleFormat{std::move(font), halfPoints, colour, b, i, u};
}

struct Loaded {
  RtfDocument doc;
  StyleTable table;
  DocumentStyling styling;
};

Loaded reload(const std::string& rtf, const StyleFormat& defaultFormat) {
  Loaded l{readRtf(rtf), StyleTable(defaultFormat), {}};
  l.styling = styleDocument(l.doc, l.table);
  return l;
}

// Every character but a line break (which carries no format of its own) has the same format.
void expectSameFormats(const std::string& text, const StyleTable& wantTable, const std::string& wantStyles,
                       const StyleTable& gotTable, const std::string& gotStyles) {
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') continue;
    EXPECT_EQ(gotTable.format(static_cast<unsigned char>(gotStyles[i])),
              wantTable.format(static_cast<unsigned char>(wantStyles[i])))
        << "at " << i;
  }
}

}  // namespace

TEST(RtfRoundTrip, TextFormatsStrikeoutsAndIndentComeBack) {
  const StyleFormat base = makeFormat("Courier New", 20, 0x000000);
  StyleTable table(base);
  const int red = table.styleFor(makeFormat("Courier New", 20, 0x0000FF, true));
  const int blue = table.styleFor(makeFormat("Arial", 24, 0xFF0000, false, true, true));
  const std::string text = "N10 G00 X0\r\nN20 G01 X1.5\r\n\r\n%";
  std::string styles(text.size(), '\0');
  for (std::size_t i = 0; i < 10; ++i) styles[i] = static_cast<char>(red);
  for (std::size_t i = 12; i < 24; ++i) styles[i] = static_cast<char>(blue);
  const std::vector<TextRange> strikes{{16, 19}};

  const std::string rtf = writeRtf({text, styles, &strikes, 400}, table);
  const Loaded back = reload(rtf, base);
  EXPECT_EQ(back.doc.text, text);
  EXPECT_EQ(back.doc.indentTwips, 400);
  EXPECT_EQ(back.styling.strikeouts, strikes);
  expectSameFormats(text, table, styles, back.table, back.styling.styles);
}

TEST(RtfRoundTrip, EveryByteOfTheTextSurvives) {
  std::string text;
  for (int b = 1; b < 256; ++b) text += static_cast<char>(b);
  text += "\r\nend\rlone CR\nlone LF\r\n";
  StyleTable table(makeFormat("Courier New", 20, kAutoColour));
  const std::string rtf = writeRtf({text, {}, nullptr, 0}, table);
  EXPECT_EQ(readRtf(rtf).text, text);
  // Seven-bit output that a word processor can open.
  for (char c : rtf) EXPECT_LT(static_cast<unsigned char>(c), 0x80);
}

TEST(RtfRoundTrip, EmptyDocumentsAndTrailingEmptyLinesKeepTheirLineCount) {
  StyleTable table;
  for (const std::string text : {"", "\r\n", "a\r\n", "a\r\n\r\n", "\r\n\r\nb"})
    EXPECT_EQ(readRtf(writeRtf({text, {}, nullptr, 0}, table)).text, text) << text;
}

TEST(RtfRoundTrip, ColorizerOutputSurvivesAReadWriteRead) {
  // The undo snapshot of a colorized document must give back the same document.
  const auto first = lathwick::readRtfFile(std::string(LATHWICK_TEST_DATA_DIR) + "/rtf/colorized_modes.rtf");
  StyleTable table(makeFormat("Courier New", 20, kAutoColour));
  const DocumentStyling styling = styleDocument(first, table);
  const Loaded second = reload(writeRtf({first.text, styling.styles, &styling.strikeouts, first.indentTwips}, table),
                               table.defaultFormat());
  EXPECT_EQ(second.doc.text, first.text);
  EXPECT_EQ(second.doc.indentTwips, first.indentTwips);
  EXPECT_EQ(second.styling.strikeouts, styling.strikeouts);
  expectSameFormats(first.text, table, styling.styles, second.table, second.styling.styles);
}

TEST(RtfRoundTrip, UnformattedTextTakesTheDefaultStyle) {
  StyleTable table(makeFormat("Courier New", 20, 0x123456));
  const auto plain = readRtf("N10 G00\r\nN20");  // not rich text at all
  const auto styling = styleDocument(plain, table);
  EXPECT_EQ(styling.styles, std::string(plain.text.size(), '\0'));
  const auto bare = readRtf("{\\rtf1 N10}");
  EXPECT_EQ(styleDocument(bare, table).styles, std::string(3, '\0'));
}

TEST(RtfRoundTrip, FontNamesWithRtfSpecialsComeBack) {
  StyleTable table(makeFormat("Courier New", 20, kAutoColour));
  const int odd = table.styleFor(makeFormat("Odd\\{Font} \xC9", 20, kAutoColour));
  const std::string text = "X1";
  const std::string styles(2, static_cast<char>(odd));
  const Loaded back = reload(writeRtf({text, styles, nullptr, 0}, table), table.defaultFormat());
  ASSERT_EQ(back.doc.text, text);
  EXPECT_EQ(back.table.format(static_cast<unsigned char>(back.styling.styles[0])).fontName, "Odd\\{Font} \xC9");
}
