#pragma once
// The one way a whole-document run goes in the editor, for the colour views, the Options menu's
// passes and the dialogs' passes alike: the document's plain text goes to the input work file,
// the run goes from there to the output work file with the hourglass, progress and the cancel
// flag, and then a completed run's output comes back as a whole-document reload that Undo can
// take back (FileUndoable), or whatever went wrong is shown in its message box.
#include <QPointer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/pass_monitor.h"
#include "platform/pass_result.h"
#include "transform/gui/pass_observer.h"
#include "transform/gui/transform_target.h"

class QAbstractButton;
class QProgressBar;
class QWidget;

namespace lathwick::gui {

using DocumentPass = std::function<PassResult(const std::string& inPath, const std::string& outPath, PassMonitor&)>;

// How one run shows itself and how its output enters the document.
struct PassRun {
  QProgressBar* bar = nullptr;     // a dialog's own progress bar; null: the progress form
  QWidget* parent = nullptr;       // the dialog, or the frame the progress form shows over
  ReloadFormat output = ReloadFormat::Rich;
  std::optional<PassKind> notify;  // the pass observer hears of the reload (the motion check)
  // Told true before the run and false after it: the frame lets Esc cancel from anywhere while
  // a menu command's run goes on (a dialog's run has the dialog's own Esc).
  std::function<void(bool running)> running;
};

// Empty when the document could not be written to the input work file: then nothing runs and
// nothing is said. (A run that puts its own text in the status bar ends with "Press F1 for
// help." itself.)
std::optional<PassResult> runDocumentPass(TransformTarget& target, const PassRun& run, const DocumentPass& pass);

// A finished output enters the document: ReloadDocument, then FileUndoable when the reload (and
// the undo snapshot before it) worked, so that Undo never reaches for a snapshot that is not
// there. False when the reload failed.
bool takeOutput(TransformTarget& target, const std::string& path, ReloadFormat format);

// While a pass lets window events run, only the dialog's Cancel button may act: every other
// button of `dialog` is disabled for the lifetime of this object and then given back its state.
class ButtonsHeld {
 public:
  ButtonsHeld(QWidget& dialog, const QAbstractButton* cancel);
  ~ButtonsHeld();
  ButtonsHeld(const ButtonsHeld&) = delete;
  ButtonsHeld& operator=(const ButtonsHeld&) = delete;

 private:
  std::vector<QPointer<QAbstractButton>> held_;
};

}  // namespace lathwick::gui
