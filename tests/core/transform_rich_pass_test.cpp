// The rich-text pass shared by replace, highlight and operate: framing, escaping, range,
// progress, cancellation and the outcomes it hands back.
#include <gtest/gtest.h>

#include <vector>

#include "document/line_ending_checks.h"
#include "marker_frame.h"
#include "recording_monitor.h"
#include "support/temp_dir.h"
#include "transform/rich_pass.h"

using namespace lathwick::transform;
using lathwick::PassOutcome;
using lathwick::PassResult;
using lathwick::PassFrame;
using lathwick::test::RecordingMonitor;
using lathwick::test::TempDir;

namespace {

// Trailing blanks on header and trailer, which the pass must drop.
PassFrame testFrame() { return lathwick::test::markerFrame("{\\rtf1 H}   ", "\\par}  ", 400); }

// Upper-cases the line and counts one change per line that had a lower-case letter, marking
// its first character.
class UpperCase : public RichLineTransform {
 public:
  long transform(std::string_view raw, std::string& line, std::vector<Stretch>& marks) override {
    raws.emplace_back(raw);
    bool changed = false;
    for (char& c : line)
      if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32), changed = true;
    if (changed) marks.push_back({0, 1});
    return changed ? 1 : 0;
  }
  std::vector<std::string> raws;
};

RichPassSettings settingsFor(long lines = -1) {
  RichPassSettings s;
  s.statusText = "Working... [Esc] to cancel";
  s.countPhrase = " Things made.";
  s.errorEnding = " occurred during the test.";
  s.displayLineCount = lines;
  return s;
}

std::string lines(int n) {
  std::string s;
  for (int i = 0; i < n; ++i) s += "g1\r\n";
  return s;
}

PassResult pass(const std::string& in, const std::string& out, UpperCase& t,
                lathwick::PassMonitor& m = lathwick::silentMonitor(), LineRange range = {}, long displayLines = -1) {
  return runRichPass(in, out, testFrame(), range, t, settingsFor(displayLines), m);
}

}  // namespace

TEST(RichPass, WritesHeaderEscapedParagraphsAndTrailer) {
  TempDir dir;
  const auto in = dir.write("in.txt", "a{b}\r\nc\\d\r\nE");
  UpperCase t;
  RecordingMonitor m;
  const auto r = pass(in, dir.file("out.rtf"), t, m);
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_EQ(r.count, 2);
  EXPECT_TRUE(r.reload);
  EXPECT_EQ(r.statusLabel, "2 Things made.");
  EXPECT_EQ(dir.read("out.rtf"),
            "{\\rtf1 H}\r\n\\li400 <A>\\{B\\}\r\n\\par\\li400 <C>\\\\D\r\n\\par\\li400 E\r\n\\par}\r\n");
  EXPECT_EQ(t.raws, (std::vector<std::string>{"a{b}", "c\\d", "E"}));
  EXPECT_EQ(m.statuses, (std::vector<std::string>{"Working... [Esc] to cancel", "Press F1 for help."}));
  EXPECT_EQ(m.clears, 1);
}

TEST(RichPass, OnlyLinesInRangeAreTransformedAndNoChangeMeansNoReload) {
  TempDir dir;
  const auto in = dir.write("in.txt", "a\r\nb\r\nc\r\n");
  UpperCase t;
  const auto r = pass(in, dir.file("out.rtf"), t, lathwick::silentMonitor(), LineRange{2, 2});
  EXPECT_EQ(r.count, 1);
  EXPECT_NE(dir.read("out.rtf").find("\\li400 a\r\n\\par\\li400 <B>\r\n\\par\\li400 c\r\n"), std::string::npos);

  const auto r2 = pass(dir.write("upper.txt", "A\r\nB"), dir.file("out2.rtf"), t);
  EXPECT_EQ(r2.outcome, PassOutcome::Completed);
  EXPECT_EQ(r2.count, 0);
  EXPECT_FALSE(r2.reload);
  EXPECT_EQ(r2.statusLabel, "0 Things made.");
  EXPECT_FALSE(dir.read("out2.rtf").empty());  // still written, for the batch tool
}

TEST(RichPass, EmptyInputGivesHeaderAndTrailerOnly) {
  TempDir dir;
  UpperCase t;
  const auto r = pass(dir.write("in.txt", ""), dir.file("out.rtf"), t);
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_EQ(dir.read("out.rtf"), "{\\rtf1 H}\r\n\\par}\r\n");
}

TEST(RichPass, ProgressOnlyAbove200LinesEveryHundredth) {
  TempDir dir;
  UpperCase t;
  RecordingMonitor at200;
  pass(dir.write("a.txt", lines(200)), dir.file("a.rtf"), t, at200);
  EXPECT_TRUE(at200.starts.empty());
  EXPECT_TRUE(at200.values.empty());
  EXPECT_GE(at200.pumps, 200);  // events still run once per line

  RecordingMonitor at201;
  pass(dir.write("b.txt", lines(201)), dir.file("b.rtf"), t, at201);
  ASSERT_EQ(at201.starts, std::vector<long>{201});
  EXPECT_EQ(at201.ends, 1);
  // Step 2: reported before reading lines 1, 3, 5, ... and at the end of input.
  ASSERT_FALSE(at201.values.empty());
  EXPECT_EQ(at201.values.front(), 0);
  EXPECT_EQ(at201.values[1], 2);
  EXPECT_EQ(at201.values.back(), 200);
  EXPECT_EQ(at201.values.size(), 101u);
}

TEST(RichPass, DisplayLineCountFromTheEditorDecidesTheProgress) {
  TempDir dir;
  UpperCase t;
  RecordingMonitor m;
  pass(dir.write("a.txt", lines(10)), dir.file("a.rtf"), t, m, LineRange{}, 1000);
  EXPECT_EQ(m.starts, std::vector<long>{1000});
  EXPECT_EQ(m.values, (std::vector<long>{0, 10}));
}

TEST(RichPass, CancelStopsAfterTheLineInHandAndWritesNothing) {
  TempDir dir;
  UpperCase t;
  RecordingMonitor m;
  m.cancelAfterPumps = 3;
  const auto out = dir.write("out.rtf", "previous");
  const auto r = pass(dir.write("a.txt", lines(10)), out, t, m);
  EXPECT_EQ(r.outcome, PassOutcome::Cancelled);
  EXPECT_EQ(r.message, "Operation canceled by user.");
  EXPECT_EQ(r.title, "Operation Incomplete.");
  EXPECT_FALSE(r.reload);
  EXPECT_EQ(t.raws.size(), 3u);
  EXPECT_EQ(dir.read("out.rtf"), "previous");
}

TEST(RichPass, BareLineFeedsAreRefusedWithTheJunkFilterMessage) {
  TempDir dir;
  UpperCase t;
  const auto r = pass(dir.write("a.txt", "G00\nG01\n"), dir.file("out.rtf"), t);
  EXPECT_EQ(r.outcome, PassOutcome::Refused);
  EXPECT_EQ(r.message, lathwick::kJunkFilterMessage);
  EXPECT_TRUE(t.raws.empty());
  EXPECT_FALSE(std::filesystem::exists(dir.file("out.rtf")));
}

TEST(RichPass, MissingInputIsNoInputAndUnwritableOutputFails) {
  TempDir dir;
  UpperCase t;
  const auto r = pass(dir.file("none.txt"), dir.file("out.rtf"), t);
  EXPECT_EQ(r.outcome, PassOutcome::NoInput);
  EXPECT_EQ(r.errorNumber, 53);

  const auto r2 = pass(dir.write("a.txt", "x"), dir.file("no/such/folder/out.rtf"), t);
  EXPECT_EQ(r2.outcome, PassOutcome::Failed);
  EXPECT_EQ(r2.message.rfind("The error 76 ", 0), 0u) << r2.message;
  EXPECT_NE(r2.message.find(" occurred during the test."), std::string::npos);
}
