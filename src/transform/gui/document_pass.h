#pragma once
// How a dialog runs one pass over the active document: the document's plain text goes to the
// input work file, the pass runs with the hourglass, progress and the cancel flag, and whatever
// went wrong is shown in its message box. Loading the output back is left to the dialog, since
// each operation decides when its output enters the document.
#include <functional>
#include <optional>
#include <string>

#include "platform/pass_monitor.h"
#include "transform/pass_result.h"

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

// The message box of an outcome other than Completed (none for NoInput).
void reportPassOutcome(QWidget* parent, const transform::PassResult& result);

}  // namespace lathwick::gui
