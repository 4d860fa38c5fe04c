// A document window's scheme menu lists the schemes of the data file, and follows what Edit
// Schemes does to the list; the active document takes the colours of the scheme the editor
// closes on.
#include <QTimer>

#include "format/gui/frm_setup.h"
#include "format/scheme_data_file.h"
#include "frame_fixture.h"
#include "workspace/gui/menu_set.h"

using namespace lathwick;
using lathwick::test::FrameTest;

TEST_F(FrameTest, SchemeMenuListsTheSchemesWithTheDocumentsOwnChecked) {
  if (!useBundledSchemes()) GTEST_SKIP() << "no bundled scheme data file in the build folder";
  const SchemeList list = loadSchemeList(values.DataFilePath, 1);
  ASSERT_GE(list.entries.size(), 2u);
  values.CurrentScheme = 2;
  start();
  trigger("mnuNew");
  gui::frmEditor* e = frame->activeEditor();
  for (std::size_t i = 0; i < list.entries.size(); ++i) {
    QAction* entry = frame->menuAction("mnuScheme", static_cast<int>(i) + 1);
    ASSERT_NE(entry, nullptr) << i;
    EXPECT_EQ(entry->text().toStdString(), list.entries[i].name);
    EXPECT_EQ(entry->isChecked(), i == 1) << i;
    EXPECT_TRUE(entry->isEnabled());
  }
  EXPECT_EQ(e->Scheme(), list.entries[1].name);
  // Activation puts the scheme's page colour behind the text.
  EXPECT_EQ(e->rtfTextBox().background(), loadScheme(values.DataFilePath, 2).backColour & 0xFFFFFF);

  // Choosing another scheme gives the document that scheme and colours it in it.
  trigger("mnuScheme", 1);
  EXPECT_EQ(e->record().scheme, 1);
  EXPECT_EQ(e->Scheme(), list.entries[0].name);
  EXPECT_TRUE(frame->menuAction("mnuScheme", 1)->isChecked());
  EXPECT_FALSE(frame->menuAction("mnuScheme", 2)->isChecked());
  EXPECT_EQ(e->rtfTextBox().background(), loadScheme(values.DataFilePath, 1).backColour & 0xFFFFFF);
  EXPECT_TRUE(e->FileUndoable());
  // Scripts choose by caption; an unknown caption changes nothing.
  e->setScheme("no such scheme");
  EXPECT_EQ(e->record().scheme, 1);
  e->setScheme(list.entries[1].name);
  EXPECT_EQ(e->record().scheme, 2);
  EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(FrameTest, AnUnreadableDataFileIsReportedOnce) {
  std::filesystem::remove(values.DataFilePath);
  std::filesystem::create_directory(values.DataFilePath);  // there, but not a file
  start();
  trigger("mnuNew");
  trigger("mnuNew");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].caption, kDataFileProblemTitle);
  EXPECT_EQ(frame->menuAction("mnuScheme", 1)->text().toStdString(), "Scheme");
}

TEST_F(FrameTest, SchemeEditorFromTheMenuUpdatesSchemeMenusAndTheActiveDocument) {
  if (!useBundledSchemes()) GTEST_SKIP() << "no bundled scheme data file in the build folder";
  start();
  trigger("mnuNew");
  trigger("mnuNew");
  gui::frmEditor* active = frame->activeEditor();
  const long before = schemeRecordCount(values.DataFilePath);

  bool driven = false;
  QTimer::singleShot(0, [&] {
    auto* form = qobject_cast<gui::frmSetup*>(QApplication::activeModalWidget());
    if (!form) {
      for (QWidget* w : QApplication::topLevelWidgets())
        if (auto* f = qobject_cast<gui::frmSetup*>(w); f && f->isVisible()) form = f;
    }
    ASSERT_NE(form, nullptr);
    form->findChild<QAction*>("mnuNew")->trigger();  // appended and shown: the editor closes on it
    driven = true;
    form->close();
  });
  trigger("mnuEditSchemes");
  ASSERT_TRUE(driven);
  const long added = before + 1;
  ASSERT_EQ(schemeRecordCount(values.DataFilePath), added);
  // Every open window's Scheme menu lists the new scheme.
  for (gui::frmEditor* e : frame->editors()) {
    QAction* entry = e->menus().action("mnuScheme", static_cast<int>(added));
    ASSERT_NE(entry, nullptr);
    EXPECT_EQ(entry->text().toStdString(), "new_" + std::to_string(added));
  }
  EXPECT_EQ(settings.get("Startup", "record"), std::to_string(added));
  EXPECT_EQ(active->record().scheme, added);
  EXPECT_EQ(active->rtfTextBox().background(), loadScheme(values.DataFilePath, added).backColour & 0xFFFFFF);
  EXPECT_TRUE(dialogs.messages.empty());
}
