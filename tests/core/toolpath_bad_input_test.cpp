// What the model cannot follow: words it does not interpret, bad numbers, garbage bytes. Each
// gives a warning on its line and the rest of the program is still modelled.
#include <random>

#include "toolpath_fixture.h"

namespace lathwick::toolpath::test {
namespace {

std::vector<std::string> texts(const Modelled& r) {
  std::vector<std::string> out;
  for (const Warning& w : r.warnings) out.push_back(std::to_string(w.line) + ": " + w.text);
  return out;
}

TEST(ToolpathBadInput, UnsupportedWordsWarnAndTheDrawingGoesOn) {
  const Modelled r = model(
      "G1 F100 G41 D1 X1\n"   // compensation: drawn as programmed
      "M98 P1000\n"            // subprogram call
      "#1=5\n"                 // macro variable: the line is not followed
      "G1 X#1 Y3\n"
      "G71 U1 R1\n"           // lathe cycle: its words are not motion
      "A45 X2\n"              // rotary axis: X still moves
      "o100 sub\n"
      "G28 X0 Y0\n"
      "X3\n");
  EXPECT_EQ(texts(r), (std::vector<std::string>{"1: unsupported G41", "2: unsupported M98", "3: unsupported #1=5",
                                                "4: unsupported X#1", "5: unsupported G71", "5: unsupported U1",
                                                "6: unsupported A45", "7: unsupported SUB", "8: unsupported G28"}));
  ASSERT_EQ(r.moves.size(), 3u);
  expectPoint(r.moves[1].end, 2, 0, 0);
  expectPoint(r.moves[2].end, 3, 0, 0);
  EXPECT_EQ(r.moves[2].line, 9u);
}

TEST(ToolpathBadInput, BadNumbersAndGarbageBytesWarnOnTheirLine) {
  const std::string zeros(400, '0');
  const Modelled r = model("G1 F100 X--1 Y2\nX1e400\nY1" + zeros + "\nX3 \x01\xff Y4\nG1 X1.2.3\n4.5 X5\nX\n");
  EXPECT_EQ(texts(r), (std::vector<std::string>{"1: bad number X--1", "2: unsupported E400", "3: bad number Y1" + zeros,
                                                "4: unreadable byte 0x01", "4: unreadable byte 0xFF",
                                                "5: bad number X1.2.3", "6: unsupported 4.5", "7: bad number X"}));
  ASSERT_EQ(r.moves.size(), 4u);
  expectPoint(r.moves[0].end, 0, 2, 0);
  expectPoint(r.moves[1].end, 1, 2, 0);
  expectPoint(r.moves[2].end, 3, 4, 0);
  expectPoint(r.moves[3].end, 5, 4, 0);
}

TEST(ToolpathBadInput, MacroTextGivesOneWarningAndTheLineIsNotFollowed) {
  const Modelled r = model("\xEF\xBB\xBFo<helix> sub\n#<x> = [#<r> * cos[30] + 1]\nG1 X[#<x>+1] F10\nX1\n");
  EXPECT_EQ(texts(r), (std::vector<std::string>{"1: unsupported O<HELIX>", "2: unsupported #<X>",
                                                "3: unsupported X[#<X>+1]", "4: feed move without a feed rate"}));
  ASSERT_EQ(r.moves.size(), 1u);
  EXPECT_EQ(r.moves[0].line, 4u);
  EXPECT_EQ(r.moves[0].kind, MoveKind::Feed);  // the G1 before the macro text still counts
  EXPECT_DOUBLE_EQ(r.moves[0].feed, 0);        // the F after it does not
}

TEST(ToolpathBadInput, RandomBytesNeverStopTheModel) {
  std::mt19937 random(15);
  std::string program;
  for (int i = 0; i < 200000; ++i) program += static_cast<char>(random() % 256);
  program += "\r\nG0 X7 Y8\r\n";
  const Modelled r = model(program);
  ASSERT_FALSE(r.moves.empty());
  expectPoint(r.moves.back().end, 7, 8, r.moves.back().end.z);
  EXPECT_FALSE(r.warnings.empty());
  for (const Warning& w : r.warnings) EXPECT_FALSE(w.text.empty());
}

}  // namespace
}  // namespace lathwick::toolpath::test
