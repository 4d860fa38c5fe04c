#pragma once
// How a dialog runs one pass over the active document: the document's plain text goes to the
// input work file, the pass runs with the hourglass, progress and the cancel flag, and whatever
// went wrong is shown in its message box. Loading the output back is left to the dialog, since
// each operation decides when its output enters the document.
#include <QPointer>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/pass_monitor.h"
#include "transform/pass_result.h"

class QAbstractButton;
class QProgressBar;
class QWidget;

namespace lathwick::gui {

class TransformTarget;

using DocumentPass =
    std::function<transform::PassResult(const std::string& inPath, const std::string& outPath, PassMonitor&)>;

// Empty when the document could not be written to the input work file: then nothing runs and
// nothing is reported. `bar` may be null (no progress display of the dialog's own).
std::optional<transform::PassResult> runDocumentPass(TransformTarget& target, QProgressBar* bar, QWidget* parent,
                                                     const DocumentPass& pass);

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

// The message box of an outcome other than Completed (none for NoInput).
void reportPassOutcome(const transform::PassResult& result);

}  // namespace lathwick::gui
