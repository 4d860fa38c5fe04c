// A document's file changed or deleted by another program is noticed when the frame is activated:
// a changed file is offered for reloading (Yes reloads, and Undo brings the editor's text back;
// No keeps it and the same change is not asked about again); a deleted file is reported once and
// the document kept, marked changed; the editor's own saves are not changes.
#include <QEvent>
#include <QMdiSubWindow>
#include <filesystem>

#include "document/disk_change.h"
#include "document/document_table.h"
#include "frame_fixture.h"
#include "shell/gui/disk_change_watch.h"

using namespace lathwick;
using lathwick::test::FrameTest;
using lathwick::test::readBytes;
using gui::Answer;

namespace {
class DiskChangeTest : public FrameTest {
 protected:
  gui::frmEditor* openWatched(const std::string& path) {
    start();
    watch = gui::installDiskChangeWatch(*frame);
    gui::frmEditor* e = openFile(path);
    QApplication::processEvents();  // the activation's own look finds nothing
    return e;
  }
  std::size_t asked() const { return dialogs.messages.size(); }
  gui::DiskChangeWatch* watch = nullptr;
};
}  // namespace

TEST_F(DiskChangeTest, YesReloadsTheFileAndUndoBringsTheEditorsTextBack) {
  const std::string path = files.write("O1000.nc", "G00 X0\nM30\n");
  gui::frmEditor* e = openWatched(path);
  EXPECT_EQ(asked(), 0u);
  files.write("O1000.nc", "G00 X0\nG01 X50. F300\nM30\n");  // the CAM system posts again
  dialogs.answers = {Answer::Yes};
  // Coming back to the main window is when it is noticed.
  QEvent activate(QEvent::WindowActivate);
  QApplication::sendEvent(frame.get(), &activate);
  QApplication::processEvents();
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{{reloadQuestion(path, false), kDiskChangeCaption,
                                                             gui::Buttons::YesNo, gui::Icon::Question}}));
  EXPECT_EQ(e->text(), "G00 X0\r\nG01 X50. F300\r\nM30\r\n");
  EXPECT_FALSE(e->record().changed);
  EXPECT_EQ(e->record().lineEnds, LineEnds::Lf);

  trigger("mnuUndo");
  EXPECT_EQ(e->text(), "G00 X0\r\nM30\r\n");
  watch->checkAll();
  EXPECT_EQ(asked(), 1u) << "the reloaded file is the file as the editor knows it";
}

TEST_F(DiskChangeTest, NoKeepsTheTextAndTheSameChangeIsNotAskedAgain) {
  const std::string path = files.write("O1000.nc", "G00 X0\r\n");
  gui::frmEditor* e = openWatched(path);
  e->replaceSelection("N1 ");
  files.write("O1000.nc", "posted again\r\n");
  dialogs.answers = {Answer::No};
  watch->checkAll();
  ASSERT_EQ(asked(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, reloadQuestion(path, true)) << "says the document has unsaved changes";
  EXPECT_EQ(e->text(), "N1 G00 X0\r\n");
  EXPECT_TRUE(e->record().changed);
  watch->checkAll();
  watch->check(*e);
  EXPECT_EQ(asked(), 1u);

  files.write("O1000.nc", "and again, longer\r\n");  // a new change is asked about
  watch->checkAll();
  EXPECT_EQ(asked(), 2u);
}

TEST_F(DiskChangeTest, ADeletedFileIsReportedOnceAndTheDocumentKeptChanged) {
  const std::string path = files.write("O1000.nc", "G00 X0\r\n");
  gui::frmEditor* e = openWatched(path);
  std::filesystem::remove(path);
  watch->checkAll();
  ASSERT_EQ(asked(), 1u);
  EXPECT_EQ(dialogs.messages[0].caption, kDiskDeletedCaption);
  EXPECT_EQ(dialogs.messages[0].text, deletedNotice(path));
  EXPECT_EQ(e->text(), "G00 X0\r\n");
  EXPECT_TRUE(e->record().changed) << "so that closing asks to save it";
  watch->checkAll();
  EXPECT_EQ(asked(), 1u);

  trigger("mnuSave");  // writes the file again
  EXPECT_EQ(readBytes(path), "G00 X0\r\n");
  watch->checkAll();
  EXPECT_EQ(asked(), 1u);
}

TEST_F(DiskChangeTest, TheEditorsOwnSaveIsNotAChange) {
  const std::string path = files.write("O1000.nc", "G00 X0\r\n");
  gui::frmEditor* e = openWatched(path);
  e->replaceSelection("N1 ");
  trigger("mnuSave");
  watch->checkAll();
  EXPECT_EQ(asked(), 0u);
  // A document window being activated looks at its own file.
  files.write("O1000.nc", "changed outside\r\n");
  trigger("mnuNew");
  dialogs.answers = {Answer::No};
  frame->mdiArea()->setActiveSubWindow(qobject_cast<QMdiSubWindow*>(e->parentWidget()));
  QApplication::processEvents();
  EXPECT_EQ(asked(), 1u);
}

TEST_F(DiskChangeTest, ADocumentThatCameInAnotherWayIsWatchedFromTheFirstLook) {
  const std::string path = files.write("O2000.nc", "on disk\r\n");
  start();
  watch = gui::installDiskChangeWatch(*frame);
  trigger("mnuNew");
  gui::frmEditor* e = frame->activeEditor();
  e->record().fileName = path;  // as a recovered document is given its own file's name
  watch->check(*e);
  EXPECT_EQ(asked(), 0u) << "the file as it is now is where the watch starts";
  files.write("O2000.nc", "posted while it was open\r\n");
  watch->check(*e);
  EXPECT_EQ(asked(), 1u);
}

TEST_F(DiskChangeTest, ADocumentGivenAnotherNameIsWatchedUnderTheNewOne) {
  const std::string path = files.write("O3000.nc", "G00 X0\r\n");
  gui::frmEditor* e = openWatched(path);
  // Save As Rich Text renames the document even when its dialog is cancelled: the missing
  // O3000.RTF is not a deleted file.
  trigger("mnuSaveRTF");
  EXPECT_NE(e->record().fileName, path);
  watch->checkAll();
  EXPECT_EQ(asked(), 0u);
}
