// The Window menu lists the documents, activates the chosen one and arranges them.
#include <QMenu>

#include "frame_fixture.h"
#include "workspace/gui/menu_set.h"

using namespace lathwick;
using lathwick::test::FrameTest;

TEST_F(FrameTest, WindowMenuListsActivatesAndArrangesTheDocuments) {
  start();
  frame->resize(900, 700);
  trigger("mnuNew");
  trigger("mnuNew");
  trigger("mnuNew");
  QMenu* menu = frame->activeEditor()->menus().menu("mnuWindow");
  emit menu->aboutToShow();
  std::vector<std::string> entries;
  QAction* second = nullptr;
  for (QAction* a : menu->actions())
    if (a->property("windowEntry").toBool() && !a->isSeparator()) {
      entries.push_back(a->text().toStdString());
      if (entries.size() == 2) second = a;
    }
  EXPECT_EQ(entries, (std::vector<std::string>{"&1 Untitled 1", "&2 Untitled 2", "&3 Untitled 3"}));
  ASSERT_NE(second, nullptr);
  second->trigger();
  EXPECT_EQ(caption(frame->activeEditor()), "Untitled 2");
  // Shown again, the list is rebuilt rather than appended to.
  emit menu->aboutToShow();
  int count = 0;
  for (QAction* a : menu->actions()) count += a->property("windowEntry").toBool() && !a->isSeparator();
  EXPECT_EQ(count, 3);

  // Tile and Cascade arrange every window.
  trigger("mnuClose");
  const auto windows = frame->mdiArea()->subWindowList();
  ASSERT_EQ(windows.size(), 2);
  const QRect area = frame->mdiArea()->viewport()->rect();
  trigger("mnuTileVert");  // side by side
  EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, area.width() / 2, area.height()));
  EXPECT_EQ(windows[1]->geometry(), QRect(area.width() / 2, 0, area.width() / 2, area.height()));
  trigger("mnuTilrHoriz");  // one above the other
  EXPECT_EQ(windows[0]->geometry(), QRect(0, 0, area.width(), area.height() / 2));
  EXPECT_EQ(windows[1]->geometry(), QRect(0, area.height() / 2, area.width(), area.height() / 2));
  trigger("mnuCascade");
  EXPECT_NE(windows[0]->geometry().topLeft(), windows[1]->geometry().topLeft());
  EXPECT_LT(windows[0]->width(), area.width());
}
