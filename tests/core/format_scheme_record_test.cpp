// The scheme record's byte layout: offsets, little-endian numbers, blank padding, flags.
#include <gtest/gtest.h>

#include <random>

#include "format/scheme_data_file.h"
#include "format/scheme_record.h"

using namespace lathwick;

namespace {

std::int16_t i16At(const std::string& b, std::size_t at) {
  return static_cast<std::int16_t>(static_cast<unsigned char>(b[at]) | (static_cast<unsigned char>(b[at + 1]) << 8));
}

SchemeRecord sampleRecord() {
  SchemeRecord r;
  r.rtfHeader = "{\\rtf1 head}\r\n{\\colortbl;}";
  r.rtfTrailer = "\\par}";
  r.name = "Shop";
  r.backColour = 0x00C0FFEE;
  for (int set = 0; set < kSetCount; ++set)
    for (int i = 0; i < kStyleCount; ++i) {
      SchemeStyle& s = r.sets[set][i];
      s.colour = set * 1000 + i;
      s.colourNumber = static_cast<std::int16_t>(i + 1);
      s.size = static_cast<std::int16_t>(8 + i);
      s.fontName = "Font" + std::to_string(set) + "_" + std::to_string(i);
      s.fontNumber = static_cast<std::int16_t>(i);
      s.bold = i % 2 == 0;
      s.italic = i % 3 == 0;
      s.underline = i % 5 == 0;
      s.strikeout = i == 13;
      s.marker = set == 1 ? " M" + std::to_string(i) : "";
      s.attributes = "\\f" + std::to_string(i);
      s.family = "fswiss";
    }
  r.style(0, 0).indentSteps = 2;
  return r;
}

}  // namespace

TEST(SchemeRecordLayout, FieldsSitAtTheirOffsetsLittleEndianAndBlankPadded) {
  const std::string b = encodeSchemeRecord(sampleRecord());
  ASSERT_EQ(b.size(), 12532u);
  EXPECT_EQ(b.substr(0, 12), "{\\rtf1 head}");
  EXPECT_EQ(b.substr(512, 16), "\\par}           ");
  EXPECT_EQ(b.substr(528, 16), "Shop            ");
  EXPECT_EQ(b.substr(544, 4), std::string("\xEE\xFF\xC0\x00", 4));
  // Set 1 starts at 6540; style 13's colour, size, font name, flags, marker, indent, family.
  EXPECT_EQ(b.substr(6540 + 4 * 13, 4), std::string("\xF5\x03\x00\x00", 4));  // 1013
  EXPECT_EQ(i16At(b, 6540 + 84 + 2 * 13), 21);
  EXPECT_EQ(b.substr(6540 + 112 + 128 * 13, 10), "Font1_13  ");
  EXPECT_EQ(i16At(b, 548 + 1932), -1);           // bold of set 0 style 0: all bits set
  EXPECT_EQ(i16At(b, 548 + 1932 + 2), 0);        // style 1 not bold
  EXPECT_EQ(i16At(b, 548 + 1960 + 2 * 13), -1);  // strikeout of style 13
  EXPECT_EQ(b.substr(6540 + 2044 + 16 * 3, 16), " M3             ");
  EXPECT_EQ(i16At(b, 548 + 2268), 2);
  EXPECT_EQ(b.substr(548 + 5880 + 8 * 5, 8), "fswiss  ");
  EXPECT_EQ(b.substr(548 + 112 + 128, 128), "Font0_1" + std::string(121, ' '));
}

TEST(SchemeRecordLayout, ReadingBackTrimsPaddingButKeepsLeadingBlanks) {
  const SchemeRecord in = sampleRecord();
  const SchemeRecord out = decodeSchemeRecord(encodeSchemeRecord(in));
  EXPECT_EQ(encodeSchemeRecord(out), encodeSchemeRecord(in));
  EXPECT_EQ(out.name, "Shop");
  EXPECT_EQ(out.style(1, 13).fontName, "Font1_13");
  EXPECT_EQ(out.style(1, 3).marker, " M3");  // keeps its blank: it is not a code marker
  EXPECT_FALSE(isCodeMarker(out.style(1, 3).marker));
  EXPECT_FALSE(isCodeMarker(""));
  EXPECT_TRUE(isCodeMarker("M#"));
}

TEST(SchemeRecordLayout, LongNamesAreCutAndAnyNonZeroFlagIsOn) {
  SchemeRecord r = sampleRecord();
  r.name = "A very long scheme name";
  std::string b = encodeSchemeRecord(r);
  EXPECT_EQ(b.substr(528, 16), "A very long sche");
  b[548 + 2016] = 1;  // italic of set 0 style 0 written as 1 by some other program
  b[548 + 2016 + 1] = 0;
  const SchemeRecord back = decodeSchemeRecord(b);
  EXPECT_EQ(back.name, "A very long sche");
  EXPECT_TRUE(back.style(0, 0).italic);
}

TEST(SchemeRecordLayout, BytesThatCannotBeASchemeGiveTheDataFileMessage) {
  std::mt19937 gen(7);
  std::string garbage(kSchemeRecordSize, '\0');
  for (char& c : garbage) c = static_cast<char>(gen());
  try {
    decodeSchemeRecord(garbage);
    FAIL() << "garbage accepted";
  } catch (const DataFileProblem& e) {
    EXPECT_STREQ(e.what(),
                 "There is a problem with data file in the installed directory.\n"
                 "If the problem persists you will have to restore an older version. ");
  }
  std::string hugeSize = encodeSchemeRecord(sampleRecord());
  hugeSize[548 + 84] = '\xFF';
  hugeSize[548 + 85] = '\x7F';
  EXPECT_THROW(decodeSchemeRecord(hugeSize), DataFileProblem);
  EXPECT_THROW(decodeSchemeRecord(std::string(100, ' ')), DataFileProblem);
}

TEST(SchemeRecordNew, NewRecordGetsDefaultMarkersZeroIndentAndFnil) {
  SchemeRecord r = sampleRecord();
  r.style(1, 4).family = "";
  r.style(0, kCommentStyle).marker = ";";
  EXPECT_EQ(prepareNewRecord(r, 3), "new_3");
  EXPECT_EQ(r.indentSteps(), 0);
  EXPECT_EQ(r.style(0, kCommentStyle).marker, "(");
  EXPECT_EQ(r.style(0, kBlockSkipStyle).marker, "/");
  EXPECT_EQ(r.style(1, 4).family, "fnil");
  EXPECT_EQ(fontFamilyKeyword(0x31), "fmodern");
  EXPECT_EQ(fontFamilyKeyword(0x90), "fnil");
}
