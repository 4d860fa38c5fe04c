// The family keyword of a font: "fmodern" marks a fixed-pitch font, read into the style's format
// and written back, so a missing font can be stood in by a fixed-pitch one.
#include <gtest/gtest.h>

#include "document/rtf_reader.h"
#include "document/rtf_styling.h"
#include "document/rtf_writer.h"

using namespace lathwick;

TEST(RtfFontFamily, FixedPitchFontsAreKnownByTheirFamilyKeyword) {
  const std::string rtf =
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fmodern Lucida Console;}{\\f1\\fswiss Arial;}"
      "{\\f2\\fnil\\fcharset0 Courier New;}}\\f0 G00\\f1  X1\\f2  Y2}";
  StyleFormat base;
  base.fontName = "Courier New";
  StyleTable table(base);
  const RtfDocument doc = readRtf(rtf);
  const DocumentStyling styling = styleDocument(doc, table);
  ASSERT_EQ(doc.text, "G00 X1 Y2");
  const StyleFormat& lucida = table.format(static_cast<unsigned char>(styling.styles[0]));
  const StyleFormat& arial = table.format(static_cast<unsigned char>(styling.styles[4]));
  const StyleFormat& courier = table.format(static_cast<unsigned char>(styling.styles[8]));
  EXPECT_EQ(lucida.fontName, "Lucida Console");
  EXPECT_TRUE(lucida.fixedPitch);
  EXPECT_EQ(arial.fontName, "Arial");
  EXPECT_FALSE(arial.fixedPitch);
  EXPECT_FALSE(courier.fixedPitch);  // "fnil" says nothing about the pitch

  // Written and read again, the keyword comes back with the font.
  const std::string again = writeRtf({doc.text, styling.styles, &styling.strikeouts, 0}, table);
  EXPECT_NE(again.find("\\fmodern Lucida Console;"), std::string::npos) << again;
  EXPECT_NE(again.find("\\fnil Arial;"), std::string::npos) << again;
  StyleTable table2(base);
  const RtfDocument doc2 = readRtf(again);
  const DocumentStyling styling2 = styleDocument(doc2, table2);
  EXPECT_TRUE(table2.format(static_cast<unsigned char>(styling2.styles[0])).fixedPitch);
  EXPECT_FALSE(table2.format(static_cast<unsigned char>(styling2.styles[4])).fixedPitch);
}
