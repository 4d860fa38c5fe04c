// The menus and toolbar the frame shows: captions as tabulated, the document window's menu
// taking the frame's place, and entries for missing features disabled with a tooltip.
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>
#include <QToolButton>

#include "frame_fixture.h"
#include "workspace/gui/menu_set.h"

using namespace lathwick;
using lathwick::test::FrameTest;

namespace {
std::vector<std::string> topCaptions(QMenuBar* bar) {
  std::vector<std::string> out;
  for (QAction* a : bar->actions())
    if (a->isVisible()) out.push_back(a->text().toStdString());
  return out;
}
using Strings = std::vector<std::string>;
}  // namespace

TEST_F(FrameTest, FrameMenuGivesWayToTheDocumentMenuAndComesBack) {
  start();
  EXPECT_EQ(topCaptions(frame->menuBar()), (Strings{"&File", "&Settings", "&Help"}));
  trigger("mnuNew");
  EXPECT_EQ(topCaptions(frame->menuBar()), (Strings{"&File", "&Edit", "&View", "S&cheme", "&Options", "&Settings",
                                                    "&Window", "&Macro", "&Help"}));
  // "Procedures" is there, hidden until scripts add entries.
  ASSERT_NE(frame->menuAction("mnuProcedures"), nullptr);
  EXPECT_FALSE(frame->menuAction("mnuProcedures")->isVisible());
  trigger("mnuClose");
  EXPECT_EQ(topCaptions(frame->menuBar()), (Strings{"&File", "&Settings", "&Help"}));
}

TEST_F(FrameTest, DocumentMenuKeepsItsOwnSpellingsAndKeys) {
  start();
  trigger("mnuNew");
  struct Row { const char* name; int index; const char* value; };
  const Row captions[] = {{"mnuContents", -1, "&Contents\tF1"}, {"mnuTileVert", -1, "Tile &Vertically        { II }"},
                          {"mnuTilrHoriz", -1, "Tile &Horizontally   { = }"}, {"mnuModal", 2, "&Reload"}};
  for (const Row& r : captions) EXPECT_EQ(frame->menuAction(r.name, r.index)->text().toStdString(), r.value) << r.name;
  const Row keys[] = {{"mnuCutToEnd", -1, "Shift+F5"}, {"mnuExecuteMacro", 1, "Ctrl+L"}, {"mnuModal", 1, "F7"},
                      {"mnuShow", -1, "F11"}, {"mnuContents", -1, "F1"}};
  for (const Row& r : keys)
    EXPECT_EQ(frame->menuAction(r.name, r.index)->shortcut().toString().toStdString(), r.value) << r.name;
  // The text control handles the clipboard keys itself: the menu only shows them.
  EXPECT_TRUE(frame->menuAction("mnuCut")->shortcut().isEmpty());
}

TEST_F(FrameTest, EveryFeatureOfTheMenusIsThereOnceADocumentIsOpen) {
  start();
  trigger("mnuNew");
  // No entry of either menu tree is left waiting for a later feature.
  // (The hidden Procedures menu's "List" entry is only a place holder for the Execute pop-up.)
  for (QAction* a : frame->findChildren<QAction*>()) {
    if (a->objectName().startsWith(QStringLiteral("mnuProcc"))) continue;
    EXPECT_NE(a->toolTip().toStdString(), gui::kNotYetAvailable) << a->objectName().toStdString();
  }
  // (The commands themselves are enabled: every feature's test runs its own through trigger().)
  EXPECT_TRUE(frame->menuAction("mnuPrint")->isEnabled());
  EXPECT_TRUE(frame->toolButton("Comm")->isEnabled());
}

TEST_F(FrameTest, ALaterPartPlugsInByRegisteringItsCommand) {
  start();
  trigger("mnuNew");
  int runs = 0;
  frame->commands().add("mnuPrintPlain", [&](int) { ++runs; });
  frame->commands().add("PrintFile", [&](int) { ++runs; });
  frame->refreshAvailability();
  EXPECT_TRUE(frame->menuAction("mnuPrint")->isEnabled());  // the submenu has something in it now
  trigger("mnuPrintPlain");
  frame->toolButton("Print")->trigger();
  EXPECT_EQ(frame->toolButton("Print")->toolTip().toStdString(), "Print active document");
  EXPECT_EQ(runs, 2);
}

TEST_F(FrameTest, ToolbarHasItsButtonsInOrderWithTheQuickFolders) {
  settings.save("Startup", "QuickFolder2", files.folder());
  start();
  auto* bar = frame->findChild<QToolBar*>("Toolbar1");
  ASSERT_NE(bar, nullptr);
  Strings keys;
  for (QAction* a : bar->actions()) keys.push_back(a->isSeparator() ? "-" : a->objectName().toStdString());
  EXPECT_EQ(keys, (Strings{"New", "Open", "Save", "-", "Print", "-", "Find", "-", "Cut", "Copy", "Paste", "Delete",
                           "Undo", "-", "Codes", "Modes", "-", "Expand", "Renumber", "-", "Comm", "Help"}));
  EXPECT_EQ(frame->toolButton("Renumber")->toolTip().toStdString().rfind("Resequence line numbers ", 0), 0u);
  EXPECT_EQ(frame->toolButton("New")->toolTip().toStdString(), "New document");
  ASSERT_NE(frame->openButton()->menu(), nullptr);
  EXPECT_EQ(frame->openButton()->menu()->actions().size(), 4);
  EXPECT_EQ(frame->quickFolderAction(1)->text().toStdString(), "Folder1");
  EXPECT_EQ(frame->quickFolderAction(2)->text().toStdString(), files.folder());
  // Without a document only New, Open and Help can act.
  EXPECT_TRUE(frame->toolButton("New")->isEnabled());
  EXPECT_FALSE(frame->toolButton("Save")->isEnabled());
  EXPECT_FALSE(frame->toolButton("Paste")->isEnabled());
}

namespace {
// The visible entries of a menu, submenus in brackets, separators as "-".
std::string layoutOf(QMenu* menu) {
  std::string out;
  for (QAction* a : menu->actions()) {
    if (!a->isVisible()) continue;
    if (!out.empty()) out += " | ";
    if (a->isSeparator())
      out += "-";
    else if (a->menu())
      out += a->text().toStdString() + " [" + layoutOf(a->menu()) + "]";
    else
      out += a->text().toStdString();
  }
  return out;
}
}  // namespace

TEST_F(FrameTest, FileMenusAreLaidOutAsTabulated) {
  start();
  EXPECT_EQ(layoutOf(frame->frameMenus().menu("mnuFile")), "&New | &Open | - | - | E&xit");
  trigger("mnuNew");
  QMenu* file = frame->activeEditor()->menus().menu("mnuFile");
  EXPECT_EQ(layoutOf(file),
            "&New | &Open | &Close | &Save | Save &As [Save &As *.* | Save As &RTF] | - | "
            "&Print [Print Plain Text | Print &Rich Text] | - | Send &To [Empty] | - | E&xit");
  EXPECT_EQ(layoutOf(frame->activeEditor()->menus().menu("mnuEdit")),
            "&Undo\tCtrl+Z | - | Cu&t\tCtrl+X | Cut &Line | Cut To &End | &Copy\tCtrl+C | &Paste\tCtrl+V | "
            "Paste L&ine | A&ppend Clipboard | &Empty Clipboard | Select &All | &Get Last Selection | - | "
            "&Find | &Replace | &Set Search/Replace | - | &Upper Case | &Lower Case | &Title Case");
  EXPECT_EQ(layoutOf(frame->activeEditor()->menus().menu("mnuSettings")),
            "&Edit Schemes | - | &Toolbar | Toolbar Te&xt | &Status Bar | &Line Numbers | &Auto Format | - | "
            "Edit &Send-To List");
}
