// The rich-text reader: the colorizer's own output loads exactly, and the RTF constructs word
// processors write give the text a reader of the document sees.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "document/rtf_reader.h"
#include "support/temp_dir.h"

namespace {

using lathwick::kAutoColour;
using lathwick::readRtf;
using lathwick::RtfCharFormat;
using lathwick::RtfDocument;

// The format in force at a character offset.
const RtfCharFormat& formatAt(const RtfDocument& doc, std::size_t offset) {
  std::size_t i = 0;
  while (i + 1 < doc.runs.size() && doc.runs[i + 1].start <= offset) ++i;
  return doc.formats.at(doc.runs.at(i).format);
}

std::string textOf(const std::string& rtf) { return readRtf(rtf).text; }

}  // namespace

TEST(RtfReader, ColorizerOutputLoadsWithItsTextFormatsAndIndent) {
  const auto doc = lathwick::readRtfFile(std::string(LATHWICK_TEST_DATA_DIR) + "/rtf/colorized_modes.rtf");
  EXPECT_EQ(doc.text, "%\r\nN10 G00 X0 Y0\r\nN20 G01 X10.5 Y20 (CUT \\ {A})\r\n\r\n%");
  EXPECT_EQ(doc.indentTwips, 400);
  EXPECT_EQ(doc.fontName(0), "Courier New");
  EXPECT_EQ(doc.fontName(1), "Arial");

  const auto& first = formatAt(doc, 0);  // "%": all other text
  EXPECT_EQ(first.font, 0);
  EXPECT_EQ(first.halfPoints, 20);
  EXPECT_EQ(first.colour, 0x000000u);
  EXPECT_FALSE(first.bold || first.italic || first.underline || first.strike);

  const std::size_t n10 = doc.text.find("N10");
  const auto& rapid = formatAt(doc, n10);
  EXPECT_EQ(rapid.colour, 0x0000FFu);  // red, kept as 0x00BBGGRR
  EXPECT_TRUE(rapid.bold);
  EXPECT_EQ(formatAt(doc, n10 + 12).colour, 0x0000FFu);  // through the end of the line

  const std::size_t n20 = doc.text.find("N20");
  const auto& arc = formatAt(doc, n20);
  EXPECT_EQ(arc.font, 1);
  EXPECT_EQ(arc.halfPoints, 24);
  EXPECT_EQ(arc.colour, 0xFF0000u);  // blue
  EXPECT_TRUE(arc.italic);
  EXPECT_FALSE(arc.bold);
  EXPECT_TRUE(formatAt(doc, doc.text.find("X10.5")).strike);
  EXPECT_FALSE(formatAt(doc, doc.text.find("X10.5")).underline);
  // The blank after "\ul" delimits the word; the second blank is text, and underlined.
  EXPECT_TRUE(formatAt(doc, doc.text.find(" Y20")).underline);
  EXPECT_FALSE(formatAt(doc, doc.text.find("(CUT")).underline);
  // Formats are interned: the first and last "%" share one.
  EXPECT_EQ(doc.runs.front().format, doc.runs.back().format);
}

TEST(RtfReader, TheTextAReaderOfTheDocumentSees) {
  std::string binary = "{\\rtf1 a{\\*\\shppict{\\pict\\bin6 ";  // skipped by count, braces and all
  binary += std::string("}{\\x\0b", 6) + "}}b}";
  const std::pair<std::string, std::string> rows[] = {
      // The last paragraph mark ends the document without an empty line; a line break is always
      // a break; backslash + line end is \par.
      {"{\\rtf1 a\\par b\\par}", "a\r\nb"}, {"{\\rtf1 a\\par\\par}", "a\r\n"}, {"{\\rtf1 \\par}", ""},
      {"{\\rtf1 a\\line b\\line}", "a\r\nb\r\n"}, {"{\\rtf1 a\\\nb\\\r\nc}", "a\r\nb\r\nc"},
      // Escapes, symbols and special characters; raw line ends and control bytes in the source
      // are not text, a literal tab is.
      {"{\\rtf1 \\\\ \\{x\\} a\\tab b\\~c\\-d\\_e}", "\\ {x} a\tb\xA0" "cd-e"},
      {"{\\rtf1 \\lquote q\\rquote \\ldblquote d\\rdblquote \\emdash\\endash\\bullet}",
       "\x91q\x92\x93" "d\x94\x97\x96\x95"},
      {"{\\rtf1 caf\\'e9 \\'4A}", "caf\xE9 J"}, {"{\\rtf1 a\r\nb\x01\tc}\0", "ab\tc"},
      // Unicode escapes skip their fallbacks (\uc1 by default, euro with two, none): alpha has no
      // Windows-1252 byte, a surrogate pair is one character, skipping stops at the group end.
      {"{\\rtf1 \\u233?x}", "\xE9x"}, {"{\\rtf1 \\uc2\\u8364\\'80\\'80y}", "\x80y"},
      {"{\\rtf1 \\uc0\\u8226 z}", "\x95z"}, {"{\\rtf1 \\u945 a b}", "? b"},
      {"{\\rtf1 \\u-10179?\\u-9047?!}", "?!"}, {"{\\rtf1 {\\uc3\\u233 a}bc}", "\xE9" "bc"},
      // Destinations that are not shown are skipped.
      {"{\\rtf1{\\info{\\title T}{\\author A}}{\\stylesheet{\\s0 Normal;}}{\\*\\generator G;}"
       "{\\*\\unknowndest hidden}{\\header H}{\\footnote F}{\\pict\\wmetafile8 0102ff}"
       "{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt shown}} body}",
       "shown body"},
      {binary, "ab"},
      // Code pages convert to Windows-1252: in 1250 0xB3 is l with stroke (no byte), 0xE9 is e
      // acute in both; in \pc (437) 0x82 is e acute; a double-byte font's characters become one
      // "?" each; a symbol font keeps its bytes.
      {"{\\rtf1\\ansi\\ansicpg1250 \\'b3\\'e9}", "?\xE9"}, {"{\\rtf1\\pc \\'82}", "\xE9"},
      {"{\\rtf1{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1\\fcharset128 MS Gothic;}}\\f1\\'83\\'6f\\'81\\'5b A\\f0\\'e9}",
       "?? A\xE9"},
      {"{\\rtf1\\ansicpg1251{\\fonttbl{\\f2\\fcharset2 Symbol;}}\\f2\\'b7}", "\xB7"},
      // Text that is not rich text loads as it is; blank lines before the header are allowed.
      {"N10 G00 X0\r\nN20 {x}\\", "N10 G00 X0\r\nN20 {x}\\"}, {"", ""}, {"\r\n {\\rtf1 a}", "a"}};
  for (const auto& [rtf, text] : rows) EXPECT_EQ(textOf(rtf), text) << rtf;
}

TEST(RtfReader, PlainResetsToTheDefaultFontAndUnderlineNoneClearsUnderline) {
  const auto doc = readRtf(
      "{\\rtf1\\deff1{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}{\\colortbl;\\red1\\green2\\blue3;}"
      "\\f0\\fs30\\cf1\\b\\ul A\\ulnone B\\plain C}");
  ASSERT_EQ(doc.text, "ABC");
  EXPECT_EQ(formatAt(doc, 0).colour, 0x030201u);
  EXPECT_TRUE(formatAt(doc, 0).underline);
  EXPECT_FALSE(formatAt(doc, 1).underline);
  EXPECT_TRUE(formatAt(doc, 1).bold);
  const auto& plain = formatAt(doc, 2);
  EXPECT_EQ(plain.font, 1);
  EXPECT_EQ(plain.halfPoints, 24);
  EXPECT_EQ(plain.colour, kAutoColour);  // entry 0 of this table is the automatic colour
  EXPECT_FALSE(plain.bold);
}

TEST(RtfReader, GroupsRestoreTheFormatAndTablesSplitCells) {
  const auto doc = readRtf("{\\rtf1 a{\\b b}c\\par\\trowd x\\cell y\\cell\\row z}");
  EXPECT_EQ(doc.text, "abc\r\nx\ty\r\nz");
  EXPECT_FALSE(formatAt(doc, 0).bold);
  EXPECT_TRUE(formatAt(doc, 1).bold);
  EXPECT_FALSE(formatAt(doc, 2).bold);
}

TEST(RtfReader, TextThatIsNotRichTextLoadsAsItIs) {
  EXPECT_EQ(textOf("N10 G00 X0\r\nN20 {x}\\"), "N10 G00 X0\r\nN20 {x}\\");
  EXPECT_EQ(textOf(""), "");
  EXPECT_EQ(textOf("\r\n {\\rtf1 a}"), "a");  // blank lines before the header are allowed
}

TEST(RtfReader, RepeatedAttributeStringsGiveTheSameFormatEveryTime) {
  const std::string a = "\\f1\\fs20\\cf1\\b\\i0\\strike0\\ul0 ";
  const auto doc = readRtf("{\\rtf1{\\fonttbl{\\f0 A;}{\\f1 B;}}{\\colortbl;\\red9\\green0\\blue0;}" + a + "x\\par " +
                           "\\plain y\\par " + a + "z\\par \\f1\\fs20\\cf1\\b\\i0\\strike0\\ul01 w\\par " +
                           "{\\b0 " + a + "v}u}");
  ASSERT_EQ(doc.text, "x\r\ny\r\nz\r\nw\r\nvu");
  for (const char c : {'x', 'z', 'v'}) {
    const auto& f = formatAt(doc, doc.text.find(c));
    EXPECT_EQ(f.font, 1) << c;
    EXPECT_EQ(f.colour, 9u) << c;
    EXPECT_TRUE(f.bold) << c;
    EXPECT_FALSE(f.underline) << c;
  }
  EXPECT_FALSE(formatAt(doc, doc.text.find('y')).bold);
  EXPECT_TRUE(formatAt(doc, doc.text.find('w')).underline);  // "\ul01" is not the string seen before
  EXPECT_EQ(formatAt(doc, doc.text.find('u')), formatAt(doc, doc.text.find('w')));  // restored at the group's end
  // A word after the attribute string is not part of it, however often the pair repeats.
  const std::string t = "\\plain\\f0\\fs20 \\tab x";
  EXPECT_EQ(readRtf("{\\rtf1 " + t + t + t + "\\plain\\f0\\fs20 \\'e9}").text, "\tx\tx\tx\xE9");
}
