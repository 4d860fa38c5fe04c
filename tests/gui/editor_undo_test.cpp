// A whole-document result enters the window through reloadDocument; Undo then brings the text
// back from the undo file once, and a later hand edit is undone by the control itself.
#include <filesystem>

#include "document/document_table.h"
#include "frame_fixture.h"

using namespace lathwick;
using lathwick::test::FrameTest;

TEST_F(FrameTest, UndoAfterAReloadRestoresTheTextOnceAndKeepsTheChangedFlag) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "N10 G00 X1\r\nN20 G01 Y2\r\n"));
  EXPECT_FALSE(frame->menuAction("mnuUndo")->isEnabled());
  const std::string result = app.write("TEMP3.TXT", "N100 G00 X1\r\nN110 G01 Y2\r\n");
  ASSERT_TRUE(e->reloadDocument(result, gui::TextKind::Plain));
  e->setFileUndoable(true);
  EXPECT_EQ(e->rtfTextBox().text(), "N100 G00 X1\r\nN110 G01 Y2\r\n");
  EXPECT_TRUE(std::filesystem::exists(values.UndoFile));  // the snapshot of the text before
  EXPECT_TRUE(frame->menuAction("mnuUndo")->isEnabled());
  EXPECT_TRUE(frame->toolButton("Undo")->isEnabled());
  e->record().changed = false;  // as after a save: Undo must leave the flag as it finds it
  trigger("mnuUndo");
  EXPECT_EQ(e->rtfTextBox().text(), "N10 G00 X1\r\nN20 G01 Y2\r\n");
  EXPECT_FALSE(e->record().changed);
  EXPECT_FALSE(e->FileUndoable());
  EXPECT_FALSE(frame->menuAction("mnuUndo")->isEnabled());
  EXPECT_FALSE(frame->toolButton("Undo")->isEnabled());
}

TEST_F(FrameTest, AHandEditAfterAReloadIsUndoneByTheControl) {
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "A\r\n"));
  ASSERT_TRUE(e->reloadDocument(app.write("TEMP3.TXT", "B\r\n"), gui::TextKind::Plain));
  e->setFileUndoable(true);
  e->rtfTextBox().setSelection(0, 0);
  e->rtfTextBox().replaceSelection("C");
  QApplication::processEvents();
  EXPECT_FALSE(e->FileUndoable());
  EXPECT_TRUE(e->record().changed);
  trigger("mnuUndo");
  EXPECT_EQ(e->rtfTextBox().text(), "B\r\n");  // the hand edit, not the reload
}

TEST_F(FrameTest, TheUndoFileBelongsToOneWindowAtATime) {
  start();
  trigger("mnuNew");
  gui::frmEditor* a = frame->activeEditor();
  trigger("mnuNew");
  gui::frmEditor* b = frame->activeEditor();
  a->setFileUndoable(true);
  b->setFileUndoable(true);
  EXPECT_FALSE(a->FileUndoable());
  EXPECT_TRUE(b->FileUndoable());
}
