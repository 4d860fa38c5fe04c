// The real message box: a box raised without a caption carries the program's title.
#include <gtest/gtest.h>

#include <QMessageBox>
#include <QTimer>
#include <vector>

#include "gui_app.h"
#include "platform/gui/dialogs.h"

using namespace lathwick;

namespace {
// Answers the next message box with OK as soon as it is up, noting its title.
void answerNextBox(std::vector<QString>& titles) {
  QTimer::singleShot(0, [&titles] {
    for (QWidget* w : QApplication::topLevelWidgets()) {
      auto* box = qobject_cast<QMessageBox*>(w);
      if (!box || !box->isVisible()) continue;
      titles.push_back(box->windowTitle());
      box->done(QMessageBox::Ok);
    }
  });
}
}  // namespace

TEST(MessageBox, AnUntitledBoxCarriesTheProgramsTitleAndATitledOneItsOwn) {
  test::testApp();
  std::vector<QString> titles;
  answerNextBox(titles);
  gui::dialogs().message("Wordpad was not located.", "", gui::Buttons::Ok, gui::Icon::Exclamation);
  answerNextBox(titles);
  gui::dialogs().message("The file [x] is empty.", "File Error !", gui::Buttons::Ok, gui::Icon::Information);
  EXPECT_EQ(titles, (std::vector<QString>{"Lathwick", "File Error !"}));
}
