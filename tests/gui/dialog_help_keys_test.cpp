// F1 in each dialog and tool window opens the help page that describes it.
#include <QApplication>
#include <QDialog>
#include <QShortcut>
#include <QTimer>

#include "frame_fixture.h"
#include "platform/gui/help_key.h"

using namespace lathwick;
using lathwick::test::FrameTest;

namespace {

// The page F1 opens in `window` ("" when it has no help key).
std::string pageOfHelpKey(QWidget* window, const std::vector<std::string>& opened) {
  auto* key = window ? window->findChild<QShortcut*>(QStringLiteral("helpKey")) : nullptr;
  if (!key) return {};
  EXPECT_EQ(key->key(), QKeySequence(Qt::Key_F1));
  const std::size_t before = opened.size();
  emit key->activated();
  if (opened.size() != before + 1) return {};
  return std::filesystem::path(opened.back()).filename().string();
}

TEST_F(FrameTest, F1InEachDialogOpensItsOwnPage) {
  if (!useBundledSchemes()) GTEST_SKIP() << "no bundled scheme data file in the build folder";
  for (const char* page : {"operate.html", "renumber.html", "sendto.html", "easytext.html", "toolpath.html", "schemes.html"})
    app.write(std::string("help/") + page, "<html></html>");
  start();
  openFile(files.write("p.nc", "G00 X1\r\nG01 Y2 F100\r\n"));
  // Windows that stay open beside the document.
  const std::pair<const char*, const char*> modeless[] = {
      {"mnuOperate", "operate.html"}, {"mnuResequence", "renumber.html"}, {"mnuSendto", "sendto.html"},
      {"mnueasytext", "easytext.html"}, {"mnuShow", "toolpath.html"}};
  for (const auto& [command, page] : modeless) {
    const auto before = QApplication::topLevelWidgets();
    trigger(command);
    QWidget* opened = nullptr;
    for (QWidget* w : QApplication::topLevelWidgets())
      if (w->isVisible() && !before.contains(w) && w != frame.get()) opened = w;
    if (!opened) opened = QApplication::activeWindow();
    EXPECT_EQ(pageOfHelpKey(opened, dialogs.opened), page) << command;
    if (opened && opened != frame.get()) opened->close();
  }
  // Dialogs that hold the program until they close.
  for (const auto& [command, page] : {std::pair{"mnuEditSchemes", "schemes.html"}, {"mnuGraphicsSetup", "toolpath.html"}}) {
    std::string seen;
    QTimer::singleShot(0, [&, page = page] {
      QWidget* modal = QApplication::activeModalWidget();
      seen = pageOfHelpKey(modal, dialogs.opened);
      if (auto* dialog = qobject_cast<QDialog*>(modal)) dialog->reject();
      else if (modal) modal->close();
    });
    trigger(command);
    EXPECT_EQ(seen, page) << command;
  }
  // A page that is missing is reported, not opened.
  const std::size_t opened = dialogs.opened.size();
  gui::openHelpPage("missing.html");
  EXPECT_EQ(dialogs.opened.size(), opened);
  ASSERT_FALSE(dialogs.messages.empty());
  EXPECT_NE(dialogs.messages.back().text.find("missing.html"), std::string::npos);
}

}  // namespace
