// The program as read: line ends of any kind and in pieces of any size, block skip and comments
// as the colorizer reads them.
#include "extend/toolpath/program_lines.h"
#include "toolpath_fixture.h"

namespace lathwick::toolpath::test {
namespace {

std::vector<std::string> linesOf(const std::string& bytes, std::size_t piece) {
  std::vector<std::string> out;
  ProgramLines lines([&](std::string_view l) { out.emplace_back(l); });
  for (std::size_t at = 0; at < bytes.size(); at += piece) lines.feed(std::string_view(bytes).substr(at, piece));
  lines.finish();
  return out;
}

TEST(ToolpathReading, EveryKindOfLineEndInPiecesOfAnySize) {
  const std::vector<std::string> expected{"G0 X1", "", "G1 X2", "X3", "X4"};
  for (const std::string& bytes : {std::string("G0 X1\r\n\r\nG1 X2\r\nX3\r\nX4\r\n"), std::string("G0 X1\n\nG1 X2\nX3\nX4"),
                                   std::string("G0 X1\r\rG1 X2\rX3\rX4\r"), std::string("G0 X1\r\n\nG1 X2\rX3\r\nX4")}) {
    for (std::size_t piece : {1, 2, 3, 7, 1000}) {
      SCOPED_TRACE(piece);
      EXPECT_EQ(linesOf(bytes, piece), expected);
    }
  }
  EXPECT_TRUE(linesOf("", 4).empty());
  EXPECT_EQ(linesOf("\r\n", 1), std::vector<std::string>{""});
}

TEST(ToolpathReading, BlockSkipWithinTheFirstFourCharactersAndCommentsAsTheColorizerReadsThem) {
  const Modelled r = model(
      "/G0 X9\n"                 // block skip
      "N1/G0 X9\n"               // "/" at position 3: still block skip
      "N10 /G0 X1\n"             // position 5: read, the "/" itself is not understood
      "G0 X2 (Y9 Z9) Y2\n"
      "G0 X3 (OPEN TO THE END Y9\n"
      "g0 x4 y4 ; Z9\n");
  ASSERT_EQ(r.moves.size(), 4u);
  EXPECT_EQ(r.moves[0].line, 3u);
  expectPoint(r.moves[0].end, 1, 0, 0);
  expectPoint(r.moves[1].end, 2, 2, 0);
  expectPoint(r.moves[2].end, 3, 2, 0);
  expectPoint(r.moves[3].end, 4, 4, 0);
  ASSERT_EQ(r.warnings.size(), 1u);
  EXPECT_EQ(r.warnings[0].text, "unsupported /");
}

TEST(ToolpathReading, TheSchemesCommentPairAndBlockSkipText) {
  ModelOptions options;
  options.reader.comment = {'[', ']', true};
  options.reader.blockSkip = "DEL";
  const Modelled r = model("G0 X1 [Y9] (\nDEL X9\n", options);
  ASSERT_EQ(r.moves.size(), 1u);
  expectPoint(r.moves[0].end, 1, 0, 0);
  ASSERT_EQ(r.warnings.size(), 1u);  // "(" is no comment in this scheme
  EXPECT_EQ(r.warnings[0].text, "unsupported (");
}

}  // namespace
}  // namespace lathwick::toolpath::test
