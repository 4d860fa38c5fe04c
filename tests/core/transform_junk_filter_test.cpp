// The junk filter on bytes: leader, line feeds, tabs, control characters and high bytes.
#include <gtest/gtest.h>

#include "support/temp_dir.h"
#include "transform/junk_filter.h"

using namespace lathwick::transform;
using lathwick::PassOutcome;

TEST(JunkFilter, DropsTheJunkTurnsLineFeedsIntoCrLfAndEndsWithALineBreak) {
  using namespace std::string_literals;
  const std::pair<std::string, std::string> rows[] = {
      // The leader, tabs, control characters and high bytes (a NUL too) go.
      {"\n\n\n%\nN10 G00\n", "%\r\nN10 G00\r\n"}, {"\x12\x7f\xff   \t%\r\nX1", "%\r\nX1\r\n"},
      {"A\r\nB\nC\r\n", "A\r\nB\r\nC\r\n"},   {"X1\tY2\n", "X1Y2\r\n"}, {"X1\xa0Y2\xff\x0c\x00Z\n"s, "X1Y2Z\r\n"},
      // A line break always ends the output, unless the last byte read was a line feed; bare CR
      // line ends come out as one line.
      {"\x01\x02\x03", "\r\n"}, {"\x01\x02\n", ""}, {"", "\r\n"}, {"X1", "X1\r\n"}, {"X1\n\r", "X1\r\n\r\n"},
      {"A\rB\rC", "ABC\r\n"}};
  for (const auto& [in, out] : rows) EXPECT_EQ(junkFilter(in), out) << in;
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
