// Renumber with "Update references": each form of reference with its old and new text, the
// words that look like references but are not, and the refusals that leave the output unwritten.
#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <vector>

#include "support/temp_dir.h"
#include "transform/renumber.h"

using namespace lathwick::transform;
using lathwick::PassOutcome;
using lathwick::PassResult;
using Lines = std::vector<std::string>;

namespace {

std::string joined(const Lines& lines) {
  std::string s;
  for (const auto& l : lines) s += l + "\r\n";
  return s;
}

struct Outcome {
  PassResult result;
  std::string output;  // empty when nothing was written
};

// Renumbers from 100 by 10, all non-comment lines, keeping references.
Outcome keeping(const Lines& lines, RenumberMethod method = RenumberMethod::NonCommentLines,
                LineRange range = {}) {
  lathwick::test::TempDir dir;
  RenumberRequest req;
  req.start = 100;
  req.increment = 10;
  req.method = method;
  req.range = range;
  req.updateReferences = true;
  const std::string out = dir.file("out.txt");
  Outcome o{runRenumber(dir.write("in.txt", joined(lines)), out, req, lathwick::silentMonitor()), ""};
  if (std::filesystem::exists(out)) o.output = dir.read("out.txt");
  return o;
}

void expectKept(const Lines& in, const Lines& expected, RenumberMethod method = RenumberMethod::NonCommentLines) {
  const Outcome o = keeping(in, method);
  EXPECT_EQ(o.result.outcome, PassOutcome::Completed) << o.result.message;
  EXPECT_EQ(o.output, joined(expected));
}

void expectRefused(const Lines& in, const std::string& problem) {
  const Outcome o = keeping(in);
  EXPECT_EQ(o.result.outcome, PassOutcome::Refused);
  EXPECT_EQ(o.result.title, "Update References");
  EXPECT_EQ(o.result.message, "These references cannot be kept:\n" + problem + "\nNothing was renumbered.");
  EXPECT_TRUE(o.output.empty()) << "the refused pass wrote its output";
}

}  // namespace

TEST(RenumberReferences, EachFormOfReferenceFollowsItsBlockAndOtherWordsStay) {
  const std::pair<Lines, Lines> rows[] = {
      // Lathe cycles' two-line forms follow their profile; the one-line form too, with no
      // spaces, lower case and leading zeros: the new text is plain.
      {{"N1 G71 U1.5 R0.5", "N2 G71 P10 Q20 U0.2 W0.1 F0.25", "N10 G0 X20", "N20 G1 Z-5", "N30 G70 P10 Q20"},
       {"N100 G71 U1.5 R0.5", "N110 G71 P120 Q130 U0.2 W0.1 F0.25", "N120 G0 X20", "N130 G1 Z-5",
        "N140 G70 P120 Q130"}},
      {{"N5 G73 U3 W1 R2", "N6 G73 P7 Q8 U0.5 W0.2", "N7 G0 X1", "N8 G1 X2"},
       {"N100 G73 U3 W1 R2", "N110 G73 P120 Q130 U0.5 W0.2", "N120 G0 X1", "N130 G1 X2"}},
      {{"n1g72p0002q3d1", "N2 X1", "N3 Z1"}, {"N100n1g72p110q120d1", "N110 X1", "N120 Z1"}},
      // Subprogram calls, returns and jumps.
      {{"N1 M97 P50 L2", "N2 M30", "N50 G1 X1", "N60 M99"}, {"N100 M97 P120 L2", "N110 M30", "N120 G1 X1", "N130 M99"}},
      {{"N1 G0 X0", "N2 M99 P1"}, {"N100 G0 X0", "N110 M99 P100"}},
      {{"N1 M98 H3", "N2 M30", "N3 G1 X1"}, {"N100 M98 H120", "N110 M30", "N120 G1 X1"}},
      {{"N1 #1=0", "N2 #1=[#1+1]", "N3 IF [#1 LT 5] GOTO2", "N4 GOTO 1"},
       {"N100 #1=0", "N110 #1=[#1+1]", "N120 IF [#1 LT 5] GOTO110", "N130 GOTO 100"}},
      // Words that name no block: M98 P names a program, here and in another file; G73 with Z
      // and R drills (P dwell, Q peck); G70 with X, Z, D or E and G71.1/G71.2 name a subprogram
      // profile with Q; comments are not code.
      {{"N10 M98 P20 L3", "N20 M30", "O20", "N30 G91 G0 X1", "N40 M99"},
       {"N100 M98 P20 L3", "N110 M30", "N120O20", "N130 G91 G0 X1", "N140 M99"}},
      {{"N1 M98 P1000", "N2 G73 X1 Y1 Z-2 R0.1 Q0.5 P200 F100"},
       {"N100 M98 P1000", "N110 G73 X1 Y1 Z-2 R0.1 Q0.5 P200 F100"}},
      {{"N1 G70 Q100 X15 Z3 E0 D0.5 P2", "N2 G71.1 Q100 X15 Z3 D1 I1 R0.3 P2", "N3 (GOTO 1) G1 X1 ; GOTO 2"},
       {"N100 G70 Q100 X15 Z3 E0 D0.5 P2", "N110 G71.1 Q100 X15 Z3 D1 I1 R0.3 P2", "N120 (GOTO 1) G1 X1 ; GOTO 2"}},
      // Without references the output is that of the plain renumber.
      {{"%", "O1000", "(SETUP)", "G00 X0", "N5 G01 X1", "N30"},
       {"%", "N100O1000", "(SETUP)", "N110G00 X0", "N120 G01 X1", ""}},
      // A bare line feed inside a line still ends a block: P1 is the call's program number (O1
      // is in the file), not a return to a block N1 that does not exist.
      {{"N10 M98 P1 L3\nM30\nO1\nG91 G0 X1\nM99"}, {"N100 M98 P1 L3\nM30\nO1\nG91 G0 X1\nM99"}}};
  for (const auto& [in, out] : rows) {
    SCOPED_TRACE(in.at(0));
    expectKept(in, out);
  }
}

TEST(RenumberReferences, BlocksOutsideTheRenumberingKeepTheirNumberAndReferencesFollowTheOthers) {
  // Lines 3 and 4 are outside the range: N30 keeps its number, the jump to it stays, the jump
  // from outside the range to N1 follows it.
  const Outcome o = keeping({"N1 G1 X1", "N2 GOTO 30", "N30 G1 X2", "N4 GOTO 1"}, RenumberMethod::NonCommentLines,
                            LineRange{1, 2});
  EXPECT_EQ(o.result.outcome, PassOutcome::Completed) << o.result.message;
  EXPECT_EQ(o.output, joined({"N100 G1 X1", "N110 GOTO 30", "N30 G1 X2", "N4 GOTO 100"}));
}

TEST(RenumberReferences, ReferencesThatCannotBeFollowedRefuseThePass) {
  expectRefused({"N1 G70 P10 Q20", "N10 G1 X1"}, "Line 1: Q20 of G70 names N20, which no block has.");
  expectRefused({"N1 GOTO 5", "N5 G1 X1", "N5 G1 X2"},
                "Line 1: GOTO 5 names N5, which the blocks on lines 2 and 3 both have.");
  expectRefused({"N1 M97 P9", "N9", "N10 G1 X1"},
                "Line 1: P9 of M97 names N9 on line 2, which holds nothing else and loses its number.");
  expectRefused({"N1 GOTO #3"}, "Line 1: GOTO #3 names its block by a computed value.");
  expectRefused({"N1 M98 P5", "N5 G1 X1"}, "Line 1: P5 of M98 may name program O5 or the block N5 on line 2.");
}

TEST(RenumberReferences, ARenumberedTargetMayNotTakeTheNumberOfABlockLeftAlone) {
  const Outcome o =
      keeping({"N1 GOTO 2", "N2 G1 X1", "N110 G1 X2"}, RenumberMethod::NonCommentLines, LineRange{1, 2});
  EXPECT_EQ(o.result.outcome, PassOutcome::Refused);
  EXPECT_NE(o.result.message.find("Line 1: GOTO 2 names N2 on line 2, which would become N110 like the block on line 3."),
            std::string::npos)
      << o.result.message;
}

TEST(RenumberReferences, ManyProblemsAreCountedAndTheFirstTenNamed) {
  Lines in;
  for (int i = 0; i < 12; ++i) in.push_back("GOTO " + std::to_string(900 + i));
  const Outcome o = keeping(in);
  EXPECT_EQ(o.result.outcome, PassOutcome::Refused);
  EXPECT_NE(o.result.message.find("Line 10: GOTO 909 names N909"), std::string::npos);
  EXPECT_EQ(o.result.message.find("Line 11:"), std::string::npos);
  EXPECT_NE(o.result.message.find("... and 2 more.\nNothing was renumbered."), std::string::npos);
}
