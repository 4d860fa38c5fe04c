// The document text with a gap, and the headless document's line model kept across edits: both
// checked against a plain recount after every edit of a seeded random walk.
#include <gtest/gtest.h>

#include <random>
#include <sstream>

#include "document/gap_text.h"
#include "support/temp_dir.h"
#include "workspace/headless_workspace.h"

namespace lathwick {
namespace {

TEST(GapText, EditsAnywhereReadBackAsAPlainStringWould) {
  std::mt19937 random(7);
  std::string model = "N10 G00 X1\r\nN20 G01 Y2\r\n";
  GapText text(model);
  const std::string pieces[] = {"", "A", "N30 ", "\r\n", "long piece of text that outgrows a small gap"};
  for (int step = 0; step < 3000; ++step) {
    const std::size_t pos = random() % (model.size() + 1);
    const std::size_t count = random() % 6;
    const std::string& piece = pieces[random() % std::size(pieces)];
    model.replace(pos, std::min(count, model.size() - pos), piece);
    text.replace(pos, count, piece);
    ASSERT_EQ(text.size(), model.size()) << step;
    const std::size_t from = random() % (model.size() + 1);
    ASSERT_EQ(text.substr(from, 9), model.substr(from, 9)) << step;
  }
  EXPECT_EQ(text.str(), model);
  EXPECT_EQ(text.substr(model.size() + 5, 3), "");  // past the end: nothing
}

// Every line start and every line of a position, recounted from the text.
void expectLinesAsRecounted(const HeadlessDocument& doc, int step) {
  const std::string t = doc.text();
  std::vector<long> starts{0};
  for (std::size_t i = 0; i < t.size(); ++i) {
    if (t[i] == '\r' && i + 1 < t.size() && t[i + 1] == '\n') ++i;
    if (t[i] == '\r' || t[i] == '\n') starts.push_back(static_cast<long>(i + 1));
  }
  ASSERT_EQ(doc.lineCount(), static_cast<long>(starts.size())) << step;
  for (std::size_t line = 0; line < starts.size(); ++line) {
    ASSERT_EQ(doc.lineIndex(static_cast<long>(line)), starts[line]) << step;
    ASSERT_EQ(doc.lineFromChar(starts[line]), static_cast<long>(line)) << step;
  }
}

TEST(HeadlessLines, StayRightThroughEditsThatJoinOrPartCrAndLf) {
  test::TempDir dir;
  std::ostringstream out;
  std::istringstream in;
  HeadlessWorkspace workspace(HeadlessSettings{"", 1, dir.file("work")}, out, in);
  HeadlessDocument& doc = workspace.open(dir.write("p.nc", "N10\r\nN20\r\nN30\rN40\nN50\r\n"));
  // Text between a CR and its LF taken out makes one break of two; put back, two of one.
  doc.setSelection(3, 0);
  doc.replaceSelection("X");
  expectLinesAsRecounted(doc, -1);
  doc.setSelection(3, 1);
  doc.replaceSelection("");
  expectLinesAsRecounted(doc, -2);
  std::mt19937 random(11);
  const std::string pieces[] = {"", "X1", "\r", "\n", " (OK)"};
  for (int step = 0; step < 400; ++step) {
    const long length = doc.textLength();
    doc.setSelection(static_cast<long>(random() % (length + 1)), static_cast<long>(random() % 3));
    doc.replaceSelection(pieces[random() % std::size(pieces)]);
    expectLinesAsRecounted(doc, step);
  }
}

}  // namespace
}  // namespace lathwick
