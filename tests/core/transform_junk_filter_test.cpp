// The junk filter on bytes: leader, line feeds, tabs, control characters and high bytes.
#include <gtest/gtest.h>

#include "support/temp_dir.h"
#include "transform/junk_filter.h"

using namespace lathwick::transform;
using lathwick::PassOutcome;

TEST(JunkFilter, DropsTheLeaderTabsControlCharactersAndHighBytesAndTurnsLineFeedsIntoCrLf) {
  EXPECT_EQ(junkFilter("\n\n\n%\nN10 G00\n"), "%\r\nN10 G00\r\n");
  EXPECT_EQ(junkFilter("\x12\x7f\xff   \t%\r\nX1"), "%\r\nX1\r\n");
  EXPECT_EQ(junkFilter("A\r\nB\nC\r\n"), "A\r\nB\r\nC\r\n");
  EXPECT_EQ(junkFilter("X1\tY2\n"), "X1Y2\r\n");
  const char withNul[] = "X1\xa0Y2\xff\x0c\x00Z\n";
  EXPECT_EQ(junkFilter(std::string_view(withNul, sizeof withNul - 1)), "X1Y2Z\r\n");
}

TEST(JunkFilter, AlwaysEndsWithALineBreak) {
  EXPECT_EQ(junkFilter("\x01\x02\x03"), "\r\n");
  EXPECT_EQ(junkFilter("\x01\x02\n"), "");
  EXPECT_EQ(junkFilter(""), "\r\n");
  EXPECT_EQ(junkFilter("X1"), "X1\r\n");
  EXPECT_EQ(junkFilter("X1\n\r"), "X1\r\n\r\n");  // the last byte read was not a line feed
  EXPECT_EQ(junkFilter("A\rB\rC"), "ABC\r\n");     // bare CR line ends come out as one line
}

TEST(JunkFilter, StreamedInPiecesGivesTheSameAsWhole) {
  const std::string in = "\n \t\x80G01X1\tY2\r\n\x01N20\nM30\x1a";
  for (size_t cut = 0; cut <= in.size(); ++cut) {
    JunkFilter f;
    std::string out;
    f.feed(std::string_view(in).substr(0, cut), out);
    f.feed(std::string_view(in).substr(cut), out);
    f.finish(out);
    EXPECT_EQ(out, junkFilter(in)) << "cut at " << cut;
  }
}

TEST(JunkFilter, FileToFileAndItsFailureText) {
  lathwick::test::TempDir dir;
  auto r = runJunkFilter(dir.write("in.txt", "\n\n%\nG0\n"), dir.file("out.txt"), lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_TRUE(r.reload);
  EXPECT_EQ(dir.read("out.txt"), "%\r\nG0\r\n");
  r = runJunkFilter(dir.file("missing.txt"), dir.file("out2.txt"), lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Failed);
  EXPECT_EQ(r.message, "Unable to filter file.");
  EXPECT_FALSE(std::filesystem::exists(dir.file("out2.txt")));
}
