#pragma once
// The one seam through which the program asks the user anything: message boxes, the open and
// save dialogs, and handing the help page to the system's browser. Every window goes through
// dialogs(): the real boxes, unless a test has put its own answers in place with ScopedDialogs.
#include <optional>
#include <string>

#include "platform/questions.h"

namespace lathwick::gui {

using lathwick::Answer;
using lathwick::Buttons;
using lathwick::FileRequest;
using lathwick::Icon;

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  virtual Answer message(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) = 0;
  // The chosen path, or nothing when the user cancelled.
  virtual std::optional<std::string> chooseFile(const FileRequest& request) = 0;
  // Shows a local document (the help page) in the system's viewer.
  virtual void openInBrowser(const std::string& path) = 0;
  // A one-line query (a new name): the text entered, or nothing when the user cancelled.
  virtual std::optional<std::string> askText(const std::string& prompt, const std::string& caption,
                                             const std::string& initial);
};

// The dialogs in use. The real ones open over the active window.
Dialogs& dialogs();

// Puts `replacement` in use for its lifetime, then gives back the previous dialogs.
class ScopedDialogs {
 public:
  explicit ScopedDialogs(Dialogs& replacement);
  ~ScopedDialogs();
  ScopedDialogs(const ScopedDialogs&) = delete;
  ScopedDialogs& operator=(const ScopedDialogs&) = delete;

 private:
  Dialogs* previous_;
};

// "Text (*.*)|*.*|Text (*.TXT)|*.TXT" -> "Text (*);;Text (*.TXT)": the dialog's own form, in
// which "*.*" must read "*" to show names without an extension.
std::string qtFilterOf(const std::string& filter);

}  // namespace lathwick::gui
