// Malformed rich text loads what it can and never brings the reader down.
#include <gtest/gtest.h>

#include <random>
#include <string>

#include "document/rtf_reader.h"

using lathwick::readRtf;

TEST(RtfMalformed, UnbalancedBracesKeepTheTextAndTruncatedInputEndsWhereItStops) {
  const std::pair<const char*, const char*> rows[] = {
      // Closing braces too many, never closed, text after the document's end: it still shows.
      {"{\\rtf1 a}}} b\\par}", "a b"}, {"{\\rtf1 a{\\b b{\\i c", "abc"}, {"{\\rtf1 x}}}} y", "x y"},
      {"{\\rtf1 abc\\", "abc"}, {"{\\rtf1 abc\\'4", "abc\x04"}, {"{\\rtf1 abc\\'", "abc"}, {"{\\rtf1 abc\\u", "abc"},
      {"{\\rtf1 abc{\\pict\\bin99999 xy", "abc"}, {"{\\rtf1{\\fonttbl{\\f0 Ari", ""}, {"", ""}};
  for (const auto& [rtf, text] : rows) EXPECT_EQ(readRtf(rtf).text, text) << rtf;
}

TEST(RtfMalformed, HugeAndNegativeNumbersAreHarmless) {
  const auto doc = readRtf(
      "{\\rtf1{\\colortbl;\\red999999999999\\green-5\\blue1;}\\fs99999999999999999999\\cf99999999999 "
      "\\f-2147483648\\uc-5\\u99999999999 a\\li-99999999999 \\bin-7 b\\fs0 c}");
  EXPECT_EQ(doc.text.size(), 4u);  // "?", "a", "b", "c"
  EXPECT_EQ(doc.text.substr(1), "abc");
  for (const auto& f : doc.formats) {
    EXPECT_GE(f.halfPoints, 2);
    EXPECT_LE(f.halfPoints, 3276);
  }
}

TEST(RtfMalformed, DeepNestingDoesNotExhaustTheStack) {
  const std::size_t depth = 200000;
  std::string rtf = "{\\rtf1 ";
  for (std::size_t i = 0; i < depth; ++i) rtf += "{\\b ";
  rtf += "deep";
  for (std::size_t i = 0; i < depth; ++i) rtf += "}";
  rtf += " flat}";
  EXPECT_EQ(readRtf(rtf).text, "deep flat");
  // A skipped destination deep inside stays skipped up to its own closing brace.
  std::string skipped = "{\\rtf1 a{\\*\\x ";
  for (int i = 0; i < 5000; ++i) skipped += "{";
  skipped += "hidden";
  for (int i = 0; i < 5000; ++i) skipped += "}";
  skipped += "}b}";
  EXPECT_EQ(readRtf(skipped).text, "ab");
}

TEST(RtfMalformed, MutatedDocumentsNeverCrashTheReader) {
  const std::string seed =
      "{\\rtf1\\ansi\\ansicpg1252\\deff0{\\fonttbl{\\f0\\fcharset0 Arial;}{\\f1\\fcharset128 Gothic;}}"
      "{\\colortbl;\\red255\\green0\\blue0;}\\pard\\li200\\plain\\f0\\fs20\\cf1\\b N10 G01 X\\'e9\\u233?"
      "{\\*\\gen x}{\\pict\\bin4 {}\\}\\par\\f1\\'83\\'6f\\strike\\ul Y\\ulnone\\par}";
  std::mt19937 random(12345);
  const std::string alphabet = "{}\\'*0123456789-abfu ;\r\n\x80\xff";
  for (int round = 0; round < 3000; ++round) {
    std::string s = seed;
    const int edits = 1 + static_cast<int>(random() % 8);
    for (int e = 0; e < edits; ++e) {
      const std::size_t at = random() % (s.size() + 1);
      switch (random() % 3) {
        case 0: s.insert(at, 1, alphabet[random() % alphabet.size()]); break;
        case 1:
          if (at < s.size()) s.erase(at, 1);
          break;
        default: s.resize(at); break;
      }
    }
    const auto doc = readRtf(s);
    // Runs are well formed whatever came in.
    std::size_t previous = 0;
    for (std::size_t i = 0; i < doc.runs.size(); ++i) {
      ASSERT_LT(doc.runs[i].format, doc.formats.size());
      ASSERT_LT(doc.runs[i].start, doc.text.size());
      if (i > 0) {
        ASSERT_GT(doc.runs[i].start, previous);
      }
      previous = doc.runs[i].start;
    }
    if (!doc.text.empty()) {
      ASSERT_FALSE(doc.runs.empty());
    }
  }
}

TEST(RtfMalformed, SchemeHeaderCutShortStillShowsTheProgram) {
  // The header field holds 512 characters; a longer one loses the end of its tables.
  const auto inColours = readRtf(
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}}\r\n"
      "{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;\\red0\\gre\r\n"
      "\\li200 \\f0\\fs20\\cf1\\b\\i0\\strike0\\ul0 N10 G00\r\n"
      "\\par\\li200 \\f0\\fs20\\cf0\\b0\\i0\\strike0\\ul0 N20\r\n\\par}\r\n");
  EXPECT_EQ(inColours.text, "N10 G00\r\nN20");
  ASSERT_FALSE(inColours.runs.empty());
  EXPECT_EQ(inColours.formats[inColours.runs[0].format].colour, 0x0000FFu);  // the entries before the cut count
  EXPECT_TRUE(inColours.formats[inColours.runs[0].format].bold);

  const auto inFonts = readRtf(
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}{\\f1\\fsw\r\n"
      "\\li200 \\f0\\fs20\\cf0\\b0 N10\r\n\\par\\li200 \\f1\\fs20\\cf0\\b0 (NOTE)\r\n\\par}\r\n");
  EXPECT_EQ(inFonts.text, "N10\r\n(NOTE)");
  EXPECT_EQ(inFonts.fontName(0), "Courier New");
}
