// Edit Schemes from the frame: the open windows' Scheme menus follow what the editor does to
// the list, and the active document takes the colours of the scheme the editor closes on.
#include <QTimer>

#include "format/gui/frm_setup.h"
#include "format/scheme_data_file.h"
#include "frame_fixture.h"
#include "workspace/gui/menu_set.h"

using namespace lathwick;
using lathwick::test::FrameTest;

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
