// The one runner of whole-document runs in the editor: what goes in, when the output comes back
// and the document becomes undoable, who hears of it, and what is said otherwise.
#include <gtest/gtest.h>

#include <fstream>

#include "dialog_fixture.h"
#include "transform/gui/document_pass.h"

using namespace lathwick;
using namespace lathwick::gui;
using lathwick::test::FakeDocument;

namespace {

class DocumentPassTest : public ::testing::Test {
 protected:
  void SetUp() override {
    setPassObserver([this](TransformTarget&, PassKind kind) { heard.push_back(kind); });
  }
  void TearDown() override { setPassObserver({}); }

  // A run that copies its input to its output and ends as `result` says.
  std::optional<PassResult> run(const PassResult& result, const PassRun& how) {
    return runDocumentPass(doc, how, [&](const std::string& in, const std::string& out, PassMonitor&) {
      ++runs;
      input = test::readBytes(in);
      std::ofstream(out, std::ios::binary) << input;
      return result;
    });
  }

  QApplication& app = test::testApp();
  test::ScriptedDialogs dialogs;
  FakeDocument doc{{"G00 X1", "G01 Y2"}};
  std::vector<PassKind> heard;
  std::string input;
  int runs = 0;
};

PassResult completed(bool reload) {
  PassResult r;
  r.reload = reload;
  return r;
}

TEST_F(DocumentPassTest, ACompletedRunIsReloadedMadeUndoableAndHeardOf) {
  PassRun how;
  how.output = ReloadFormat::Plain;
  how.notify = PassKind::KeepsMotion;
  const auto result = run(completed(true), how);
  ASSERT_TRUE(result);
  EXPECT_EQ(input, "G00 X1\r\nG01 Y2\r\n") << "the run reads the document's plain text";
  EXPECT_EQ(doc.reloads, 1);
  EXPECT_EQ(doc.lastFormat, ReloadFormat::Plain);
  EXPECT_EQ(doc.reloaded, input);
  EXPECT_TRUE(doc.fileUndoable);
  EXPECT_EQ(heard, std::vector<PassKind>{PassKind::KeepsMotion});
  EXPECT_TRUE(dialogs.messages.empty());

  // Nothing to change (no replacement made): nothing reloaded, nothing said, no one told.
  doc.fileUndoable = false;
  run(completed(false), how);
  EXPECT_EQ(doc.reloads, 1);
  EXPECT_FALSE(doc.fileUndoable);
  EXPECT_EQ(heard.size(), 1u);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(DocumentPassTest, AFailedReloadDoesNotMakeTheDocumentUndoable) {
  doc.reloadFails = true;
  PassRun how;
  how.notify = PassKind::ChangesMotion;
  run(completed(true), how);
  EXPECT_EQ(doc.reloads, 1);
  EXPECT_EQ(doc.lastFormat, ReloadFormat::Rich);
  EXPECT_FALSE(doc.fileUndoable) << "Undo must not reach for a snapshot that was not taken";
  EXPECT_EQ(heard, std::vector<PassKind>{PassKind::ChangesMotion}) << "the text changed all the same";
}

TEST_F(DocumentPassTest, OtherOutcomesAreToldAndLeaveTheDocument) {
  PassResult refused;
  refused.outcome = PassOutcome::Refused;
  refused.message = "refused";
  PassResult failed = failedResult(6, "Overflow", " occurred during the operation.");
  PassResult noInput;
  noInput.outcome = PassOutcome::NoInput;
  for (const PassResult& r : {cancelledResult(3), refused, failed, noInput}) {
    const auto result = run(r, PassRun{});
    ASSERT_TRUE(result);
    EXPECT_EQ(result->outcome, r.outcome);
  }
  EXPECT_EQ(doc.reloads, 0);
  EXPECT_FALSE(doc.fileUndoable);
  EXPECT_TRUE(heard.empty());
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{  // no input is not told
                                 {kCancelledMessage, kCancelledTitle, Buttons::Ok, Icon::Information},
                                 {"refused", "Lathwick", Buttons::Ok, Icon::Information},
                                 {"The error 6 Overflow occurred during the operation.", "Lathwick", Buttons::Ok,
                                  Icon::Exclamation}}));
}

TEST_F(DocumentPassTest, ADocumentThatCannotBeWrittenRunsNothing) {
  doc.saveFails = true;
  EXPECT_FALSE(run(completed(true), PassRun{}));
  EXPECT_EQ(runs, 0);
  EXPECT_EQ(doc.reloads, 0);
  EXPECT_TRUE(dialogs.messages.empty());
}

}  // namespace
