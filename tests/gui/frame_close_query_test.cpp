// Closing a changed document asks whether to save it, and the frame closes only when every
// document has gone; closing stores the frame's settings and removes the work files.
#include <QStatusBar>
#include <QToolBar>
#include <filesystem>

#include "frame_fixture.h"

using namespace lathwick;
using lathwick::test::FrameTest;
using gui::Answer;

namespace {
constexpr const char* kQuestionTail = "] has changed.\r\nDo you want to save the changes?";
}

TEST_F(FrameTest, CloseQueryCancelKeepsTheWindowNoDropsTheChangesAndYesSavesUnderTheName) {
  const std::string path = files.write("p.nc", "G00\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  e->rtfTextBox().replaceSelection("X");
  dialogs.answers = {Answer::Cancel};
  trigger("mnuClose");
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{{"The text in [" + caption(e) + kQuestionTail, "Lathwick",
                                                             gui::Buttons::YesNoCancel, gui::Icon::Exclamation}}));
  EXPECT_EQ(frame->editors().size(), 1u);
  dialogs.answers = {Answer::No};
  trigger("mnuClose");
  EXPECT_TRUE(frame->editors().empty());
  EXPECT_EQ(lathwick::test::readBytes(path), "G00\r\n");

  openFile(path)->rtfTextBox().replaceSelection("N1 ");
  dialogs.answers = {Answer::Yes};
  trigger("mnuClose");
  EXPECT_TRUE(frame->editors().empty());
  EXPECT_EQ(dialogs.requests.size(), 2u);  // only the open dialogs: no name was asked
  EXPECT_EQ(lathwick::test::readBytes(path), "N1 G00\r\n");
}

TEST_F(FrameTest, CloseQueryYesOnUntitledAsksANameAndCancellingStillCloses) {
  start();
  trigger("mnuNew");
  frame->activeEditor()->rtfTextBox().replaceSelection("G01");
  dialogs.answers = {Answer::Yes};
  trigger("mnuClose");  // the name dialog is cancelled: closed unsaved, on purpose
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].fileName, "untitled.txt");
  EXPECT_TRUE(frame->editors().empty());

  trigger("mnuNew");
  frame->activeEditor()->rtfTextBox().replaceSelection("G02");
  dialogs.answers = {Answer::Yes};
  dialogs.files = {files.file("named.nc")};
  trigger("mnuClose");
  EXPECT_TRUE(frame->editors().empty());
  EXPECT_EQ(lathwick::test::readBytes(files.file("named.nc")), "G02");
}

TEST_F(FrameTest, FrameCloseAsksEachDocumentAndStopsOnCancel) {
  for (const char* name : {"TEMP1.TXT", "TEMP2.TXT", "TEMP3.TXT", "Grafx.TXT", "PrintRTF.RTF", "UNDO.RTF",
                           "sampletext.rtf"})
    app.write(name, "work");
  start();
  trigger("mnuNew");
  frame->activeEditor()->rtfTextBox().replaceSelection("G01");
  trigger("mnuNew");
  frame->activeEditor()->rtfTextBox().replaceSelection("G02");
  dialogs.answers = {Answer::Cancel};
  EXPECT_FALSE(frame->close());
  EXPECT_EQ(dialogs.messages.size(), 1u);  // the second document was not asked
  EXPECT_EQ(frame->editors().size(), 2u);
  EXPECT_TRUE(std::filesystem::exists(app.file("UNDO.RTF")));
  EXPECT_FALSE(settings.has("Startup", "Toolbar"));

  trigger("mnuToolbar");  // hide the toolbar, so the stored state is not the default
  dialogs.answers = {Answer::No, Answer::No};
  EXPECT_TRUE(frame->close());
  EXPECT_TRUE(frame->editors().empty());
  for (const char* name : {"TEMP1.TXT", "TEMP2.TXT", "TEMP3.TXT", "Grafx.TXT", "PrintRTF.RTF", "UNDO.RTF",
                           "sampletext.rtf"})
    EXPECT_FALSE(std::filesystem::exists(app.file(name))) << name;
  EXPECT_EQ(settings.get("Startup", "Toolbar"), "False");
  EXPECT_EQ(settings.get("Startup", "Status"), "True");
  EXPECT_EQ(settings.get("Startup", "record"), "1");
  EXPECT_FALSE(settings.get("Startup", "width").empty());
}

TEST_F(FrameTest, LoadAppliesTheStoredFrameSettings) {
  settings.save("Startup", "Toolbar", "False");
  settings.save("Startup", "Status", "False");
  settings.save("Startup", "Auto", "True");
  settings.save("Startup", "left", "1500");
  settings.save("Startup", "top", "750");
  settings.save("Startup", "width", "9000");
  settings.save("Startup", "height", "6000");
  start();
  EXPECT_TRUE(frame->findChild<QToolBar*>("Toolbar1")->isHidden());
  EXPECT_TRUE(frame->statusBar()->isHidden());
  EXPECT_TRUE(frame->autoFormat());
  EXPECT_TRUE(frame->menuAction("mnuAuto")->isChecked());
  EXPECT_FALSE(frame->menuAction("mnuToolbar")->isChecked());
  EXPECT_EQ(frame->size(), QSize(600, 400));
}

TEST_F(FrameTest, AFailedSaveOnCloseKeepsTheWindowAndItsText) {
  const std::string path = files.write("gone/p.nc", "G00\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  e->rtfTextBox().replaceSelection("N1 ");
  std::filesystem::remove_all(files.path() / "gone");
  dialogs.answers = {Answer::Yes};
  trigger("mnuClose");
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_NE(dialogs.messages[1].text.find("File not saved."), std::string::npos);
  ASSERT_EQ(frame->editors().size(), 1u);
  EXPECT_TRUE(e->record().changed);
  EXPECT_EQ(e->rtfTextBox().text(), "N1 G00\r\n");
}
