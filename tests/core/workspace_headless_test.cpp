// The headless workspace: one document from a file, its line model, its passes and colour runs
// through the same core code as the batch tool's subcommands, and Save as the editor saves.
#include <gtest/gtest.h>

#include <sstream>

#include "document/line_ending_checks.h"
#include "format/colorizer.h"
#include "format/scheme_data_file.h"
#include "platform/file_system.h"
#include "platform/pass_monitor.h"
#include "platform/pass_result.h"
#include "support/temp_dir.h"
#include "transform/junk_filter.h"
#include "transform/spaces.h"
#include "workspace/headless_workspace.h"

namespace lathwick {
namespace {

const std::string kProgram = "%\r\nO1000(PART ONE)\r\nN10G00X1.Y2.\r\nN20G01Z-0.5F100.\r\nM30\r\n%\r\n";

struct Headless : ::testing::Test {
  test::TempDir dir;
  std::ostringstream out;
  std::istringstream in{"typed answer\r\nsecond\n"};
  HeadlessWorkspace workspace{HeadlessSettings{std::string(LATHWICK_APP_DIR) + "/Lathwick.dat", 1, dir.file("work")},
                              out, in};
  std::string bytesOf(const std::string& path) { return readWholeFile(path).value_or("<missing>"); }
};

TEST_F(Headless, HoldsTheFileAndItsLines) {
  HeadlessDocument& doc = workspace.open(dir.write("a.nc", kProgram));
  ASSERT_EQ(workspace.activeDocument(), &doc);
  EXPECT_EQ(workspace.openDocuments().size(), 1u);
  EXPECT_EQ(doc.text(), kProgram);
  EXPECT_EQ(doc.lineCount(), 7);  // six lines and the empty one after the last break
  EXPECT_EQ(doc.lineIndex(2), 20);
  EXPECT_EQ(doc.lineLength(2), 12);
  EXPECT_EQ(doc.lineFromChar(20), 2);
  EXPECT_EQ(doc.lineFromChar(19), 1);  // the LF of line 1
  EXPECT_EQ(doc.lineIndex(9), -1);

  doc.setSelection(20, 3);
  EXPECT_EQ(doc.selectedText(), "N10");
  doc.replaceSelection("N0010");
  EXPECT_EQ(doc.selectionStart(), 20);
  EXPECT_EQ(doc.selectionLength(), 5);
  EXPECT_EQ(doc.lineLength(2), 14);
  doc.setSelection(400, 10);  // clamped to the text
  EXPECT_EQ(doc.selectionStart(), doc.textLength());
  EXPECT_EQ(doc.selectionLength(), 0);
}

TEST_F(Headless, PassesGiveWhatTheCoreWritesAndCommandsRunThem) {
  const std::string path = dir.write("a.nc", kProgram);
  workspace.open(path);
  ASSERT_TRUE(workspace.runCommand("mnuAddSpaces"));
  const std::string comment = commentStartText(workspace.dataFile(), 1);
  const auto result = transform::runAddSpaces(path, dir.file("expected.nc"), comment, silentMonitor());
  ASSERT_EQ(result.outcome, PassOutcome::Completed);
  EXPECT_EQ(workspace.activeDocument()->text(), bytesOf(dir.file("expected.nc")));
  EXPECT_NE(workspace.activeDocument()->text(), kProgram);

  workspace.activeDocument()->setSelection(0, 0);
  ASSERT_TRUE(workspace.runCommand("mnuSelectAll"));
  ASSERT_TRUE(workspace.runCommand("mnuLcase"));
  EXPECT_NE(workspace.activeDocument()->text().find("o1000(part one)"), std::string::npos);
  EXPECT_FALSE(workspace.runCommand("mnuNoSuchCommand"));
}

TEST_F(Headless, ARefusedPassIsToldOnTheConsoleAndChangesNothing) {
  const std::string bare = "G00 X1\nG01 Y2\n";  // bare line feeds: the junk filter refuses them
  workspace.open(dir.write("bare.nc", bare)).colorize(ColorizeRun::Modes);
  EXPECT_EQ(workspace.activeDocument()->text(), bare);
  EXPECT_EQ(out.str(), std::string(kJunkFilterMessage) + "\n");
}

TEST_F(Headless, ColourRunsMatchTheColorizerAndSaveWritesPlainOrRich) {
  const std::string path = dir.write("a.nc", kProgram);
  HeadlessDocument& doc = workspace.open(path);
  doc.colorize(ColorizeRun::Modes);
  // The colours change; the text comes back as the reader gives it, without the empty paragraph
  // after the last break.
  const std::string coloured = kProgram.substr(0, kProgram.size() - 2);
  EXPECT_EQ(doc.text(), coloured);
  ASSERT_TRUE(doc.saveAs(dir.file("a.rtf")));
  const std::string rich = bytesOf(dir.file("a.rtf"));
  EXPECT_EQ(rich.rfind("{\\rtf", 0), 0u);
  EXPECT_NE(rich.find("\\colortbl"), std::string::npos);

  HeadlessDocument& again = workspace.open(dir.file("a.rtf"));  // read back as the editor opens it
  EXPECT_EQ(again.text(), coloured);
  again.colorize(ColorizeRun::Reload);
  ASSERT_TRUE(again.saveAs(dir.file("b.nc")));
  EXPECT_EQ(bytesOf(dir.file("b.nc")), again.text());
  EXPECT_EQ(again.fileName(), dir.file("b.nc"));
}

TEST_F(Headless, QuestionsAreAnsweredOnTheConsole) {
  EXPECT_EQ(workspace.inputBox("Name?", "T", ""), "typed answer");
  EXPECT_EQ(workspace.inputBox("Again?", "T", ""), "second");
  EXPECT_EQ(workspace.inputBox("More?", "T", ""), std::nullopt);
  EXPECT_EQ(workspace.messageBox("Sure?", "T", Buttons::YesNo, Icon::Question), Answer::Yes);
  EXPECT_EQ(out.str(), "Name?\nAgain?\nMore?\nSure?\n");
  EXPECT_EQ(workspace.chooseFile(FileRequest{}), std::nullopt);

  HeadlessDocument& unnamed = workspace.open(dir.write("x.nc", "G00\r\n"));
  EXPECT_TRUE(unnamed.saveAs(dir.file("y.nc")));
  EXPECT_EQ(bytesOf(dir.file("y.nc")), "G00\r\n");
}

}  // namespace
}  // namespace lathwick
