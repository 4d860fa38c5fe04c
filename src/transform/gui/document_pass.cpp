#include "transform/gui/document_pass.h"

#include <QAbstractButton>
#include <QWidget>

#include "platform/gui/dialogs.h"
#include "transform/gui/qt_pass_monitor.h"

namespace lathwick::gui {

namespace {
void report(const PassResult& result) {
  const PassReport report = reportOf(result);
  if (report.shown) dialogs().message(report.text, report.caption, Buttons::Ok, report.icon);
}

// The undo snapshot a pass may write while it runs, dropped however the run ends unless the
// reload took it.
class PassSnapshot {
 public:
  explicit PassSnapshot(TransformTarget& target) : target_(target) { target_.beginPassSnapshot(); }
  ~PassSnapshot() { target_.endPassSnapshot(); }
  PassSnapshot(const PassSnapshot&) = delete;
  PassSnapshot& operator=(const PassSnapshot&) = delete;

 private:
  TransformTarget& target_;
};

// Tells the frame a run is going on for as long as it lasts, however it ends.
class Running {
 public:
  explicit Running(const std::function<void(bool)>& tell) : tell_(tell) {
    if (tell_) tell_(true);
  }
  ~Running() {
    if (tell_) tell_(false);
  }
  Running(const Running&) = delete;
  Running& operator=(const Running&) = delete;

 private:
  const std::function<void(bool)>& tell_;
};
}  // namespace

std::optional<PassResult> runDocumentPass(TransformTarget& target, const PassRun& run, const DocumentPass& pass) {
  const std::string in = target.inputWorkFile();
  if (!target.savePlainText(in)) return std::nullopt;
  const PassSnapshot snapshot(target);
  PassResult result;
  {
    const BusyCursor hourglass;
    const Running running(run.running);
    QtPassMonitor monitor(run.bar, [&target](const std::string& text) { target.setStatusText(text); }, run.parent);
    result = pass(in, target.outputWorkFile(), monitor);
  }
  if (result.outcome == PassOutcome::Completed && result.reload) {
    takeOutput(target, target.outputWorkFile(), run.output);
    if (run.notify) notifyPassDone(target, *run.notify);
  } else {
    report(result);
  }
  return result;
}

bool takeOutput(TransformTarget& target, const std::string& path, ReloadFormat format) {
  const bool loaded = target.reloadDocument(path, format);
  if (loaded) target.setFileUndoable(true);
  return loaded;
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

}  // namespace lathwick::gui
