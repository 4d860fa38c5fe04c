// New documents, loading and saving through the menus, and the recent-file menus.
#include <filesystem>

#include "document/document_table.h"
#include "document/paths.h"
#include "platform/bytes.h"
#include "frame_fixture.h"
#include "workspace/gui/menu_set.h"
#include "support/temp_dir.h"

using namespace lathwick;
using lathwick::test::FrameTest;

TEST_F(FrameTest, NewDocumentsAreNumberedAndReuseFreedSlots) {
  start();
  trigger("mnuNew");
  gui::frmEditor* first = frame->activeEditor();
  trigger("mnuNew");
  EXPECT_EQ(caption(first), "Untitled 1");
  EXPECT_EQ(caption(frame->activeEditor()), "Untitled 2");
  EXPECT_EQ(frame->activeEditor()->filename(), "Untitled 2");
  EXPECT_FALSE(frame->activeEditor()->record().changed);
  frame->mdiArea()->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(first->parentWidget()));
  trigger("mnuClose");
  trigger("mnuNew");
  EXPECT_EQ(caption(frame->activeEditor()), "Untitled 1");
  EXPECT_EQ(frame->editors().size(), 2u);
}

TEST_F(FrameTest, OpenLoadsTheFileWithAShortCaptionAndRemembersTheFolder) {
  const std::string path = files.write("Customer/Job42/part.nc", "G00 X1\r\nG01 Y2\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  ASSERT_NE(e, nullptr);
  EXPECT_EQ(dialogs.requests.back().title, "Open File For Editing");
  EXPECT_EQ(e->rtfTextBox().text(), "G00 X1\r\nG01 Y2\r\n");
  EXPECT_EQ(caption(e), ShortenPath(path, 25));
  EXPECT_EQ(e->filename(), path);
  EXPECT_EQ(e->LineCount(), 3);
  EXPECT_FALSE(e->record().changed);
  EXPECT_EQ(settings.get("Startup", "LastPath"), files.folder() + "Customer/Job42/");
  EXPECT_EQ(lathwick::test::readBytes(values.Temp2File), "G00 X1\r\nG01 Y2\r\n");
}

TEST_F(FrameTest, EmptyOrMissingFilesOpenNoWindow) {
  const std::string empty = files.write("empty.nc", "");
  start();
  EXPECT_EQ(openFile(empty), nullptr);
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "The file [" + empty + "] is empty.");
  EXPECT_EQ(dialogs.messages[0].caption, "File Error !");
  EXPECT_EQ(openFile(files.file("missing.nc")), nullptr);
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[1].caption, "File Error");
  EXPECT_TRUE(frame->editors().empty());
  EXPECT_TRUE(frame->documents().openIndexes().empty());
}

TEST_F(FrameTest, SaveAsRichTextWritesRichTextThatLoadsBack) {
  const std::string path = files.write("part.nc", "G00 X1\r\nG01 Y2\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  dialogs.files.push_back(files.file("part.RTF"));
  trigger("mnuSaveRTF");
  EXPECT_EQ(dialogs.requests.back().title, "Save As Rich Text File");
  EXPECT_EQ(dialogs.requests.back().fileName, "part.nc.RTF");  // "nc" is not a three-letter extension
  const std::string saved = lathwick::test::readBytes(files.file("part.RTF"));
  EXPECT_EQ(saved.substr(0, 5), "{\\rtf");
  EXPECT_EQ(e->filename(), files.file("part.RTF"));
  gui::frmEditor* again = openFile(files.file("part.RTF"));
  ASSERT_NE(again, nullptr);
  EXPECT_EQ(again->rtfTextBox().text().substr(0, 14), "G00 X1\r\nG01 Y2");
}

TEST_F(FrameTest, SaveAsWritesThePlainTextAndUpperCasesTheCaption) {
  start();
  trigger("mnuNew");
  gui::frmEditor* e = frame->activeEditor();
  e->rtfTextBox().replaceSelection("N10 G00 X0\r\nN20 M30");
  EXPECT_TRUE(e->record().changed);
  const std::string target = files.file("out/prog.nc");
  std::filesystem::create_directories(files.path() / "out");
  dialogs.files.push_back(target);
  trigger("mnuSave");  // still "Untitled": Save asks for a name
  EXPECT_EQ(dialogs.requests.back().title, "Save As Plain Text File");
  EXPECT_EQ(lathwick::test::readBytes(target), "N10 G00 X0\r\nN20 M30");
  EXPECT_EQ(caption(e), asciiUpper(ShortenPath(target, 25)));
  EXPECT_FALSE(e->record().changed);
  e->rtfTextBox().setSelection(0, 0);
  e->rtfTextBox().replaceSelection("%\r\n");
  trigger("mnuSave");  // now under its own name, no dialog
  EXPECT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(lathwick::test::readBytes(target), "%\r\nN10 G00 X0\r\nN20 M30");
}

TEST_F(FrameTest, SavingToAMissingFolderLosesNothing) {
  const std::string path = files.write("keep.nc", "G00 X1\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  e->rtfTextBox().replaceSelection("G01 ");
  const std::string before = caption(e);
  dialogs.files.push_back(files.file("no/such/folder/x.nc"));
  trigger("mnuSaveAsTXT");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  const std::string& text = dialogs.messages[0].text;
  EXPECT_EQ(text.substr(text.size() - std::string("\r\nFile not saved.").size()), "\r\nFile not saved.");
  EXPECT_GT(text.size(), std::string("\r\nFile not saved.").size());  // the reason comes first
  EXPECT_TRUE(e->record().changed);
  EXPECT_EQ(e->filename(), path);
  EXPECT_EQ(caption(e), before);
  EXPECT_EQ(e->rtfTextBox().text(), "G01 G00 X1\r\n");
  EXPECT_EQ(lathwick::test::readBytes(path), "G00 X1\r\n");
}

TEST_F(FrameTest, RecentFilesMoveToTheTopAndReopenFromBothMenus) {
  const std::string a = files.write("a.nc", "A\r\n"), b = files.write("b.nc", "B\r\n");
  start();
  EXPECT_FALSE(frame->menuAction("mnuRecentFile", 0)->isVisible());
  openFile(a);
  openFile(b);
  openFile(a);
  EXPECT_EQ(settings.get("RecentFiles", "RecentFile1"), a);
  EXPECT_EQ(settings.get("RecentFiles", "RecentFile2"), b);
  EXPECT_EQ(settings.get("RecentFiles", "RecentFile3"), "");
  // A document window's menu has two blanks after the number; the frame's menu one.
  EXPECT_TRUE(frame->menuAction("mnuRecentFile", 0)->isVisible());
  EXPECT_EQ(frame->menuAction("mnuRecentFile", 2)->text().toStdString(), "&2  " + ShortenPath(b, 25));
  EXPECT_FALSE(frame->menuAction("mnuRecentFile", 3)->isVisible());
  EXPECT_EQ(frame->frameMenus().action("mnuRecentFile", 1)->text().toStdString(), "&1 " + ShortenPath(a, 25));
  const std::size_t before = frame->editors().size();
  trigger("mnuRecentFile", 2);
  EXPECT_EQ(frame->editors().size(), before + 1);
  EXPECT_EQ(frame->activeEditor()->filename(), b);
  EXPECT_EQ(settings.get("RecentFiles", "RecentFile1"), b);
}

TEST_F(FrameTest, QuickFolderStartsTheDialogThereAndRemembersTheFileFolder) {
  settings.save("Startup", "QuickFolder3", files.folder());
  const std::string path = files.write("sub/q.nc", "Q\r\n");
  start();
  dialogs.files.push_back(path);
  frame->quickFolderAction(3)->trigger();
  EXPECT_EQ(dialogs.requests.back().initialFolder, files.folder());
  EXPECT_EQ(frame->quickFolderAction(3)->text().toStdString(), files.folder() + "sub/");
  ASSERT_NE(frame->activeEditor(), nullptr);
  frame->close();
  EXPECT_EQ(settings.get("Startup", "QuickFolder3"), files.folder() + "sub/");
}

TEST_F(FrameTest, HelpAboutAndReadMe) {
  app.write("help/index.html", "<html></html>");
  app.write("Readme.txt", "Read me\r\n");
  start();
  trigger("mnuContents");
  ASSERT_EQ(dialogs.opened.size(), 1u);
  EXPECT_EQ(dialogs.opened[0], values.HelpFile);
  frame->toolButton("Help")->trigger();
  EXPECT_EQ(dialogs.opened.size(), 2u);
  trigger("mnuAbout");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, values.VersionText);
  trigger("mnuReadMe");
  ASSERT_NE(frame->activeEditor(), nullptr);
  EXPECT_EQ(frame->activeEditor()->rtfTextBox().text(), "Read me\r\n");
  trigger("mnuRead");  // the document menu's own entry
  EXPECT_EQ(frame->editors().size(), 2u);
}

TEST_F(FrameTest, AutoFormatColoursEachNewOrLoadedDocumentByModes) {
  const std::string path = files.write("a.nc", "G00 X1\r\n");
  start();
  std::vector<std::string> coloured;  // the document each "View Modes" acted on
  frame->commands().add("mnuModal", [&](int index) {
    if (index == 0) coloured.push_back(frame->activeEditor()->filename());
  });
  frame->refreshAvailability();
  openFile(path);
  EXPECT_TRUE(coloured.empty());  // auto format is off by default
  trigger("mnuAuto");
  EXPECT_TRUE(frame->autoFormat());
  openFile(path);
  trigger("mnuNew");
  EXPECT_EQ(coloured, (std::vector<std::string>{path, "Untitled 3"}));
}
