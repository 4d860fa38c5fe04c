#pragma once
// The editor's side of the command boundary: the one place that tells the user about an
// exception a command, a dialog button or an event let escape. The frame adds what it must put
// right first (the status text); the message goes through the dialogs seam.
#include <QApplication>
#include <string>
#include <utility>

#include "platform/command_boundary.h"

namespace lathwick::gui {

// Shows "The error ... occurred." (exclamation icon) after the frame's own clean-up.
void reportEscapedError(const std::string& message);
// The frame's clean-up before the message (set once; empty by default).
void setEscapedErrorCleanup(std::function<void()> cleanup);

// A button's slot inside the boundary: connect(button, &QPushButton::clicked, this, guarded(...)).
template <class F>
auto guarded(F body) {
  return [body = std::move(body)]() { runInsideBoundary(body, reportEscapedError); };
}

// The application object of the editor: an exception that escapes any event handler (a slot
// nobody guarded, a timer, a paint) stops here and is reported, instead of ending the program.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;
  bool notify(QObject* receiver, QEvent* event) override;
};

}  // namespace lathwick::gui
