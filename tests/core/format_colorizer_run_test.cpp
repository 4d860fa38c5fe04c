// The colorizer run, file to file: document frame, refusal, cancel, progress and its steps.
#include <gtest/gtest.h>

#include "document/line_ending_checks.h"
#include "format/bundled_schemes.h"
#include "format/colorizer.h"
#include "format/pass_frame.h"
#include "recording_monitor.h"
#include "support/temp_dir.h"

using namespace lathwick;
using lathwick::test::readBytes;
using lathwick::test::RecordingMonitor;
using lathwick::test::TempDir;

namespace {

std::string program(int lines) {
  std::string text;
  for (int i = 1; i <= lines; ++i) text += "N" + std::to_string(i) + " G1 X" + std::to_string(i) + "\r\n";
  return text;
}

const SchemeRecord& scheme() {
  static const SchemeRecord s = bundledSchemes()[0];
  return s;
}

}  // namespace

TEST(ColorizerRun, WritesHeaderParagraphsAndTrailerWithCrLf) {
  TempDir dir;
  const std::string in = dir.write("TEMP2.TXT", "G1 X5\r\nX6\rY7");  // lone CR ends a line too
  const PassResult r = colorizeFile(scheme(), ColorizeView::Modes, in, dir.file("TEMP3.TXT"), silentMonitor());
  ASSERT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_EQ(r.count, 3);
  EXPECT_TRUE(r.reload) << "a completed run goes into the document";
  const PassFrame f = makePassFrame(scheme());
  const std::string g1 = f.attributes[0][kG01Mode] + " ";
  EXPECT_EQ(readBytes(dir.file("TEMP3.TXT")), f.header + "\r\n\\li200 " + g1 + "G1 X5\r\n\\par\\li200 " + g1 +
                                                   "X6\r\n\\par\\li200 " + g1 + "Y7\r\n\\par}\r\n");

  const std::string empty = dir.write("empty.txt", "");
  EXPECT_EQ(colorizeFile(scheme(), ColorizeView::Codes, empty, dir.file("e.rtf"), silentMonitor()).outcome,
            PassOutcome::Completed);
  EXPECT_EQ(readBytes(dir.file("e.rtf")), f.header + "\r\n\\par}\r\n");
}

TEST(ColorizerRun, RefusesBareLineFeedsAndIgnoresMissingInput) {
  TempDir dir;
  const std::string out = dir.file("TEMP3.TXT");
  const std::string in = dir.write("lf.txt", "G1 X1\nX2\n");
  PassResult r = colorizeFile(scheme(), ColorizeView::Modes, in, out, silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Refused);
  EXPECT_EQ(r.message, kJunkFilterMessage);
  EXPECT_FALSE(std::filesystem::exists(out));
  r = colorizeFile(scheme(), ColorizeView::Modes, dir.file("none.txt"), out, silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::NoInput);
  EXPECT_EQ(colorizeFile(scheme(), ColorizeView::Modes, "", out, silentMonitor()).outcome, PassOutcome::NoInput);
  EXPECT_FALSE(std::filesystem::exists(out));
}

TEST(ColorizerRun, OutputThatCannotBeWrittenIsReportedAsAnError) {
  TempDir dir;
  const std::string in = dir.write("in.txt", "X1\r\n");
  const PassResult r =
      colorizeFile(scheme(), ColorizeView::Modes, in, dir.file("no/folder/out.rtf"), silentMonitor());
  EXPECT_EQ(r.outcome, PassOutcome::Failed);
  EXPECT_EQ(r.message, "The error 76 Path not found occurred during the creation of the formatted output file.");
}

TEST(ColorizerRun, LongFilesShowProgressAboutAHundredTimes) {
  TempDir dir;
  const std::string in = dir.write("in.txt", program(250));
  RecordingMonitor m;
  const PassResult r = colorizeFile(scheme(), ColorizeView::Codes, in, dir.file("out.rtf"), m);
  EXPECT_EQ(r.outcome, PassOutcome::Completed);
  EXPECT_EQ(m.starts, std::vector<long>{250});
  ASSERT_EQ(m.values.size(), 125u);  // step 250 / 100 = 2
  EXPECT_EQ(m.values.front(), 2);
  EXPECT_EQ(m.values.back(), 250);
  EXPECT_EQ(m.pumps, 125);
  EXPECT_EQ(m.ends, 1);
  EXPECT_EQ(m.statuses, (std::vector<std::string>{kProcessingStatus, kReadyStatus}));
}

TEST(ColorizerRun, FilesOf101To200LinesReportEveryLineWithoutTheForm) {
  TempDir dir;
  RecordingMonitor m;
  colorizeFile(scheme(), ColorizeView::Modes, dir.write("in.txt", program(150)), dir.file("out.rtf"), m);
  EXPECT_TRUE(m.starts.empty());
  EXPECT_EQ(m.values.size(), 150u);
  EXPECT_EQ(m.ends, 0);
  RecordingMonitor small;
  colorizeFile(scheme(), ColorizeView::Modes, dir.write("in100.txt", program(100)), dir.file("out.rtf"), small);
  EXPECT_TRUE(small.values.empty());
  EXPECT_EQ(small.pumps, 0);
}

TEST(ColorizerRun, CancelLeavesTheOutputFileAsItWas) {
  TempDir dir;
  const std::string out = dir.write("TEMP3.TXT", "previous output");
  RecordingMonitor m;
  m.cancelAfterReports = 3;
  const PassResult r = colorizeFile(scheme(), ColorizeView::Codes, dir.write("in.txt", program(500)), out, m);
  EXPECT_EQ(r.outcome, PassOutcome::Cancelled);
  EXPECT_EQ(r.message, "Operation canceled by user.");
  EXPECT_EQ(r.count, 15);  // the third report, step 5
  EXPECT_EQ(readBytes(out), "previous output");
  EXPECT_EQ(m.clears, 2);  // when the run starts and when it stops
  EXPECT_EQ(m.ends, 1);
  EXPECT_EQ(m.statuses.back(), kReadyStatus);
  for (const auto& entry : std::filesystem::directory_iterator(dir.path()))
    EXPECT_EQ(entry.path().filename().string().find(".lwtmp"), std::string::npos) << "temporary file left behind";
}
