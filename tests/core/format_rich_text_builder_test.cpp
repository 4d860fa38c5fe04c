// The rich-text fragments of a scheme, byte for byte: tables with their substring rules, the
// cut header, attribute strings, the sample file and the pass frame built from them.
#include <gtest/gtest.h>

#include "format/pass_frame.h"
#include "format/rich_text_builder.h"
#include "support/temp_dir.h"

using namespace lathwick;

namespace {

SchemeRecord uniform(const std::string& font = "Courier New", std::int32_t colour = 0) {
  SchemeRecord r;
  for (auto& set : r.sets)
    for (auto& s : set) {
      s.fontName = font;
      s.family = "fmodern";
      s.size = 10;
      s.colour = colour;
    }
  return r;
}

}  // namespace

TEST(RichTextBuilder, OneFontAndOneColourGiveSingleEntryTables) {
  SchemeRecord r = uniform();
  buildSchemeFragments(r);
  EXPECT_EQ(r.rtfHeader,
            "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fmodern Courier New;}}\r\n"
            "{\\colortbl\\red0\\green0\\blue0;}\r\n"
            "\\deflang1033\\pard\\plain\\li0 \\f0\\fs20\\cf0\\b0\\i0\\strike0\\ul0");
  EXPECT_EQ(r.rtfTrailer, "\\par}");
  for (const auto& set : r.sets)
    for (const auto& s : set) EXPECT_EQ(s.attributes, "\\f0\\fs20\\cf0\\b0\\i0\\strike0\\ul0");
  EXPECT_EQ(attributeString(r, 1, 5), "\\f0\\fs20\\cf0\\b0\\i0\\strike0\\ul0 ");
}

TEST(RichTextBuilder, AttributeStringsAndColourEntries) {
  SchemeRecord r = uniform();
  SchemeStyle& s = r.style(0, 4);
  s.fontNumber = 1;
  s.colourNumber = 3;
  s.bold = true;
  EXPECT_EQ(attributeString(r, 0, 4), "\\f1\\fs20\\cf3\\b\\i0\\strike0\\ul0 ");
  s.italic = s.strikeout = s.underline = true;
  s.size = 12;
  EXPECT_EQ(attributeString(r, 0, 4), "\\f1\\fs24\\cf3\\b\\i\\strike\\ul ");
  EXPECT_EQ(colourEntry(255), "\\red255\\green0\\blue0");
  EXPECT_EQ(colourEntry(0x00804020), "\\red32\\green64\\blue128");
  EXPECT_EQ(colourEntry(-1), "\\red255\\green255\\blue255");
}

TEST(RichTextBuilder, FontNameInsideALongerNameGetsNoEntryAndKeepsItsNumber) {
  SchemeRecord r = uniform("Arial Black");
  for (auto& set : r.sets)
    for (auto& s : set) s.family = "fswiss";
  r.style(0, 3).fontName = "Arial";
  r.style(0, 3).fontNumber = 7;  // left over from an earlier build
  r.style(1, 2).fontName = "Times New Roman";
  r.style(1, 2).family = "froman";
  r.style(1, 9).fontName = "Times New Roman";
  buildSchemeFragments(r);
  EXPECT_EQ(r.rtfHeader.substr(0, r.rtfHeader.find("\r\n")),
            "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fswiss Arial Black;}{\\f1\\froman Times New Roman;}}");
  const std::vector<int> numbers{r.style(0, 3).fontNumber, r.style(1, 2).fontNumber, r.style(1, 9).fontNumber,
                                 r.style(0, 12).fontNumber};
  EXPECT_EQ(numbers, (std::vector<int>{7, 1, 1, 0}));
  EXPECT_EQ(r.style(0, 3).attributes.substr(0, 3), "\\f7");
}

TEST(RichTextBuilder, ColourEntryInsideALongerEntryGetsNoEntryAndKeepsItsNumber) {
  SchemeRecord r = uniform();
  r.style(0, 1).colour = 1 | (2 << 8) | (30 << 16);
  r.style(0, 2).colour = 1 | (2 << 8) | (3 << 16);  // "\red1\green2\blue3" lies inside "...\blue30"
  r.style(0, 2).colourNumber = 9;
  r.style(1, 5).colour = 255;
  r.style(1, 6).colour = 255;
  r.style(0, 0).colourNumber = 4;  // set 0 style 0 always starts from 0
  buildSchemeFragments(r);
  const std::size_t at = r.rtfHeader.find("{\\colortbl");
  EXPECT_EQ(r.rtfHeader.substr(at, r.rtfHeader.find("\r\n", at) - at),
            "{\\colortbl\\red0\\green0\\blue0;\\red1\\green2\\blue30;\\red255\\green0\\blue0;}");
  const std::vector<int> numbers{r.style(0, 0).colourNumber, r.style(0, 1).colourNumber, r.style(0, 2).colourNumber,
                                 r.style(1, 5).colourNumber, r.style(1, 6).colourNumber};
  EXPECT_EQ(numbers, (std::vector<int>{0, 1, 9, 2, 2}));
}

TEST(RichTextBuilder, HeaderIsCutAt512Characters) {
  SchemeRecord r = uniform();
  std::string full = "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fmodern Courier New;}";
  for (int i = 0; i < 6; ++i) {
    const std::string name = "Engravers" + std::string(50, static_cast<char>('A' + i));
    r.style(1, i).fontName = name;
    full += "{\\f" + std::to_string(i + 1) + "\\fmodern " + name + ";}";
  }
  r.style(0, 5).colour = 255;
  full += "}\r\n{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;}\r\n";
  ASSERT_GT(full.size(), 512u);
  ASSERT_LT(full.find("{\\colortbl"), 512u);  // the cut falls inside the colour table
  buildSchemeFragments(r);
  EXPECT_EQ(r.rtfHeader, full.substr(0, 512));
  EXPECT_EQ(r.style(1, 5).fontNumber, 6);
}

TEST(RichTextBuilder, IndentGoesIntoTheDefaultTextFragment) {
  SchemeRecord r = uniform();
  r.style(0, 0).indentSteps = 3;
  r.style(0, 12).bold = true;
  buildSchemeFragments(r);
  const std::string tail = "\\deflang1033\\pard\\plain\\li600 \\f0\\fs20\\cf0\\b\\i0\\strike0\\ul0";
  EXPECT_EQ(r.rtfHeader.substr(r.rtfHeader.size() - tail.size()), tail);
}

TEST(RichTextBuilder, SampleTextCarriesOnlyTheFlagsThatAreSet) {
  SchemeRecord r = uniform();
  r.style(0, 0).indentSteps = 1;
  r.style(0, 4).colour = 255;
  buildSchemeFragments(r);
  const std::string head =
      "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fmodern Courier New;}}\r\n"
      "{\\colortbl\\red255\\green0\\blue0;}\r\n\\deflang1033\\pard\\plain\\li200\\f0\\fs20\\cf0";
  EXPECT_EQ(sampleText(r, 0, 4), head + " SampleText\r\n\\par}\r\n");
  r.style(0, 4).bold = r.style(0, 4).underline = true;
  EXPECT_EQ(sampleText(r, 0, 4), head + "\\b\\ul SampleText\r\n\\par}\r\n");

  lathwick::test::TempDir dir;
  const std::string path = writeSample(r, 0, 4, dir.folder());
  EXPECT_EQ(path, dir.folder() + "sampletext.rtf");
  EXPECT_EQ(lathwick::test::readBytes(path), sampleText(r, 0, 4));
}

TEST(PassFrameTest, MarkersLineStartsAndCommentPairs) {
  SchemeRecord r = uniform();
  r.style(0, 0).indentSteps = 2;
  r.style(1, 13).bold = true;
  r.style(1, 13).colour = 255;
  r.style(0, kCommentStyle).marker = "[";
  buildSchemeFragments(r);
  const PassFrame f = makePassFrame(r);
  EXPECT_EQ(f.highlightStart, "\\f0\\fs20\\cf1\\b\\i0\\strike0\\ul0 ");
  EXPECT_EQ(f.highlightEnd, "\\plain\\f0\\fs20\\cf0\\b0\\i0\\strike0\\ul0 ");
  EXPECT_EQ(f.lineStart(true), "\\li400 ");
  EXPECT_EQ(f.lineStart(false), "\\par\\li400 ");
  EXPECT_EQ(f.trailer, "\\par}");
  EXPECT_EQ(f.comment.open, '[');
  EXPECT_EQ(f.comment.close, ']');
  const std::string semicolon = ";";
  EXPECT_EQ(makePassFrame(r, &semicolon).comment.close, ';');

  const struct {
    const char* text;
    char open, close;
  } pairs[] = {{"(", '(', ')'}, {"{", '{', '}'}, {"\"", '"', '"'}, {"~", '~', '~'}, {" %x", '%', '%'}};
  for (const auto& p : pairs) {
    const CommentDelimiters d = commentDelimitersFor(p.text);
    EXPECT_TRUE(d.active);
    EXPECT_EQ(d.open, p.open) << p.text;
    EXPECT_EQ(d.close, p.close) << p.text;
  }
  EXPECT_FALSE(commentDelimitersFor("  ").active);
}
