#include "platform/gui/command_guard.h"

#include "platform/app_names.h"
#include "platform/gui/dialogs.h"

namespace lathwick::gui {

namespace {
std::function<void()>& cleanup() {
  static std::function<void()> f;
  return f;
}
}  // namespace

void setEscapedErrorCleanup(std::function<void()> f) { cleanup() = std::move(f); }

void reportEscapedError(const std::string& message) {
  // The clean-up must not throw in turn: the report is the last word.
  if (cleanup()) runInsideBoundary(cleanup(), nullptr);
  dialogs().message(message, kAppTitle, Buttons::Ok, Icon::Exclamation);
}

bool GuardedApplication::notify(QObject* receiver, QEvent* event) {
  bool handled = false;
  runInsideBoundary([&] { handled = QApplication::notify(receiver, event); }, reportEscapedError);
  return handled;
}

}  // namespace lathwick::gui
