#include "platform/gui/help_key.h"

#include <QKeySequence>
#include <QShortcut>
#include <QWidget>

#include "platform/file_system.h"
#include "platform/gui/dialogs.h"

namespace lathwick::gui {

namespace {
std::string& folder() {
  static std::string value;
  return value;
}
}  // namespace

void setHelpFolder(const std::string& path) { folder() = path; }

std::string helpFolder() { return folder(); }

void openHelpPage(const std::string& page) {
  const std::string path = folder() + page;
  if (isRegularFile(path))
    dialogs().openInBrowser(path);
  else
    dialogs().message("The help file " + path + " could not be found.", "Lathwick", Buttons::Ok, Icon::Information);
}

void addHelpKey(QWidget* window, const std::string& page) {
  auto* key = new QShortcut(QKeySequence(Qt::Key_F1), window);
  key->setObjectName(QStringLiteral("helpKey"));
  key->setContext(Qt::WindowShortcut);
  QObject::connect(key, &QShortcut::activated, window, [page] { openHelpPage(page); });
}

}  // namespace lathwick::gui
