// Renumber: the three methods' decisions, insert and replace, the lone number that vanishes,
// skip characters and the refusal of an empty sequence text.
#include <gtest/gtest.h>

#include <vector>

#include "platform/errors.h"
#include "support/temp_dir.h"
#include "transform/renumber.h"

using namespace lathwick::transform;
using lathwick::PassOutcome;
using Lines = std::vector<std::string>;

namespace {
Lines renumbered(Lines lines, RenumberMethod method, std::int32_t start = 100, std::int32_t step = 10,
                 LineRange range = {}) {
  RenumberRequest req;
  req.start = start;
  req.increment = step;
  req.method = method;
  req.range = range;
  RenumberLine r(req);
  for (size_t i = 0; i < lines.size(); ++i) r.apply(static_cast<long>(i) + 1, lines[i]);
  return lines;
}
const Lines kFive = {"%", "O1000", "(SETUP)", "G00 X0", "N5 G01 X1"};
}  // namespace

TEST(Renumber, TheMethodsDecideWhichLinesAreNumbered) {
  using M = RenumberMethod;
  const struct { Lines in; M method; std::int32_t start, step; LineRange range; Lines out; } rows[] = {
      {kFive, M::NonCommentLines, 100, 10, {}, {"%", "N100O1000", "(SETUP)", "N110G00 X0", "N120 G01 X1"}},
      {kFive, M::ExistingNumbers, 100, 10, {}, {"%", "O1000", "(SETUP)", "G00 X0", "N100 G01 X1"}},
      {kFive, M::AllLines, 100, 10, {}, {"%", "N100O1000", "N110(SETUP)", "N120G00 X0", "N130 G01 X1"}},
      // Sequence text after the comment start counts as inside the comment; a number before the
      // comment is replaced by every method.
      {{"(N IS NEXT) G01"}, M::NonCommentLines, 100, 10, {}, {"(N IS NEXT) G01"}},
      {{"(N IS NEXT) G01"}, M::ExistingNumbers, 100, 10, {}, {"(N IS NEXT) G01"}},
      {{"(N IS NEXT) G01"}, M::AllLines, 100, 10, {}, {"N100(N IS NEXT) G01"}},
      {{"N7 G01 (N8)"}, M::ExistingNumbers, 100, 10, {}, {"N100 G01 (N8)"}},
      // The old number runs over signs, points and leading zeros.
      {{"N-5.0X1", "N00010 G1", "N1,2/3+4G1"}, M::ExistingNumbers, 100, 5, {}, {"N100X1", "N105 G1", "N110G1"}},
      // A lone number vanishes and does not use up its number.
      {{"N10 G0", "N30", "  N40   ", "N50 X1"}, M::NonCommentLines, 100, 10, {}, {"N100 G0", "", "     ", "N110 X1"}},
      // Blank and skipped lines keep their place; only the range is numbered.
      {{"", "   ", "  %x", "G0"}, M::AllLines, 100, 10, {}, {"", "   ", "  %x", "N100G0"}},
      {{"G0", "G1", "G2", "G3"}, M::NonCommentLines, 1, 1, LineRange{2, 3}, {"G0", "N1G1", "N2G2", "G3"}}};
  for (const auto& r : rows) EXPECT_EQ(renumbered(r.in, r.method, r.start, r.step, r.range), r.out) << r.in.at(0);
}

TEST(Renumber, SequenceTextSkipCharactersAndCommentStartAreTheRequests) {
  RenumberRequest req;
  req.sequenceText = "  SEQ ";
  req.skipCharacters = "#:";
  req.commentStart = " ; ";
  req.start = 1;
  RenumberLine r(req);
  Lines in = {"#x", ":y", "G0 ; SEQ1", "SEQ9 G1", "%"};
  for (size_t i = 0; i < in.size(); ++i) r.apply(static_cast<long>(i) + 1, in[i]);
  EXPECT_EQ(in, (Lines{"#x", ":y", "G0 ; SEQ1", "SEQ1 G1", "SEQ2%"}));
}

TEST(Renumber, NumberPastTheThirtyTwoBitRangeFails) {
  RenumberRequest req;
  req.start = 2147483600;
  req.increment = 100;
  RenumberLine r(req);
  std::string line = "G0";
  EXPECT_THROW(r.apply(1, line), lathwick::AppError);
}

TEST(Renumber, PassWritesEveryLineWithCrLfAndRefusesAnEmptySequenceText) {
  lathwick::test::TempDir dir;
  const auto in = dir.write("in.txt", "%\r\nG0\rN30\r\nG1");
  RenumberRequest req;
  req.start = 10;
  auto r = runRenumber(in, dir.file("out.txt"), req, lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_TRUE(r.reload);
  EXPECT_EQ(dir.read("out.txt"), "%\r\nN10G0\r\n\r\nN11G1\r\n");

  req.sequenceText = "  ";
  r = runRenumber(in, dir.file("none.txt"), req, lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Refused);
  EXPECT_EQ(r.message, "Sequence character must be specified.");
  EXPECT_EQ(r.title, "Error");
  EXPECT_FALSE(std::filesystem::exists(dir.file("none.txt")));

  req.sequenceText = "N";
  r = runRenumber(dir.file("missing.txt"), dir.file("x.txt"), req, lathwick::silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Failed);
  EXPECT_EQ(r.message, "Unable to renumber file.");
}
