#include "transform/gui/document_pass.h"

#include <QAbstractButton>
#include <QWidget>

#include "platform/gui/dialogs.h"
#include "transform/gui/qt_pass_monitor.h"
#include "transform/gui/transform_target.h"
#include "workspace/pass_report.h"

namespace lathwick::gui {

using transform::PassOutcome;
using transform::PassResult;

std::optional<PassResult> runDocumentPass(TransformTarget& target, QProgressBar* bar, QWidget* parent,
                                          const DocumentPass& pass) {
  const std::string in = target.inputWorkFile();
  if (!target.savePlainText(in)) return std::nullopt;
  PassResult result;
  {
    const BusyCursor hourglass;
    QtPassMonitor monitor(bar, [&target](const std::string& text) { target.setStatusText(text); }, parent);
    result = pass(in, target.outputWorkFile(), monitor);
  }
  reportPassOutcome(result);
  return result;
}

ButtonsHeld::ButtonsHeld(QWidget& dialog, const QAbstractButton* cancel) {
  for (QAbstractButton* b : dialog.findChildren<QAbstractButton*>()) {
    if (b == cancel || !b->isEnabled()) continue;
    b->setEnabled(false);
    held_.emplace_back(b);
  }
}

ButtonsHeld::~ButtonsHeld() {
  for (const QPointer<QAbstractButton>& b : held_)
    if (b) b->setEnabled(true);
}

void reportPassOutcome(const PassResult& result) {
  const PassReport report = reportOf(result);
  if (report.shown) dialogs().message(report.text, report.caption, Buttons::Ok, report.icon);
}

}  // namespace lathwick::gui
