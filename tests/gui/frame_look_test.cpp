// The frame's look: toolbar icons from the icon theme and the program's own drawings, names
// under them as an option, and the documents' line-number margin.
#include <QToolBar>
#include <QToolButton>
#include <Qsci/qsciscintilla.h>

#include "frame_fixture.h"
#include "workspace/menu_tables.h"
#include "shell/gui/frame_look.h"

using namespace lathwick;
using lathwick::test::FrameTest;

namespace {
int marginWidth(gui::frmEditor* editor) {
  return qobject_cast<QsciScintilla*>(editor->rtfTextBox().widget())->marginWidth(0);
}
}  // namespace

TEST_F(FrameTest, EveryToolbarButtonHasAnIconAndNamesUnderThemAreAnOption) {
  gui::useFallbackIconTheme();
  start();
  auto* toolbar = frame->findChild<QToolBar*>("Toolbar1");
  int buttons = 0;
  for (const ToolbarButton& button : toolbarTable()) {
    if (button.isSeparator()) continue;
    ++buttons;
    const QIcon icon = frame->toolButton(button.key)->icon();
    EXPECT_FALSE(icon.pixmap(24, 24).isNull()) << button.key << " has no icon";
  }
  EXPECT_EQ(buttons, 16);
  EXPECT_EQ(toolbar->toolButtonStyle(), Qt::ToolButtonIconOnly);
  EXPECT_FALSE(frame->menuAction("mnuToolbarText")->isChecked());
  trigger("mnuToolbarText");
  EXPECT_EQ(toolbar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  EXPECT_TRUE(frame->menuAction("mnuToolbarText")->isChecked());
  EXPECT_TRUE(frame->close());
  EXPECT_EQ(settings.get("Startup", "ToolbarText"), "True");
  frame.reset();
  start();
  EXPECT_EQ(frame->findChild<QToolBar*>("Toolbar1")->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
}

TEST_F(FrameTest, LineNumbersShowByDefaultAndTheSettingsMenuSwitchesThemEverywhere) {
  const std::string a = files.write("a.nc", "G00 X1\r\nG01 X2\r\n");
  const std::string b = files.write("b.nc", "G00 Y1\r\n");
  start();
  gui::frmEditor* first = openFile(a);
  ASSERT_NE(first, nullptr);
  EXPECT_GT(marginWidth(first), 0);
  EXPECT_TRUE(frame->menuAction("mnuLineNumbers")->isChecked());
  trigger("mnuLineNumbers");
  EXPECT_EQ(marginWidth(first), 0);
  gui::frmEditor* second = openFile(b);
  EXPECT_EQ(marginWidth(second), 0);  // a new window follows the setting
  EXPECT_FALSE(frame->menuAction("mnuLineNumbers")->isChecked());
  trigger("mnuLineNumbers");
  EXPECT_GT(marginWidth(first), 0);
  EXPECT_GT(marginWidth(second), 0);
  trigger("mnuLineNumbers");
  EXPECT_TRUE(frame->close());
  EXPECT_EQ(settings.get("Startup", "LineNumbers"), "False");
  frame.reset();
  start();
  EXPECT_FALSE(frame->lineNumbers());
  EXPECT_EQ(marginWidth(openFile(a)), 0);
}
