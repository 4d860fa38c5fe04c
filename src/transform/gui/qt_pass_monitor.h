#pragma once
// The editor's side of a long pass: the progress bar (a dialog's own, or the progress form when
// the command has no dialog), letting window events run while the pass goes on, the status-bar
// text and the process-wide cancel flag.
#include <QElapsedTimer>
#include <QPointer>
#include <functional>
#include <memory>
#include <string>

#include "platform/pass_monitor.h"

class QProgressBar;
class QWidget;

namespace lathwick::gui {

class frmProg;

class QtPassMonitor : public lathwick::PassMonitor {
 public:
  using StatusSink = std::function<void(const std::string&)>;

  // `bar` is the dialog's progress bar, shown while progress runs and hidden after. With no bar
  // the progress form is shown instead, over `formParent`.
  QtPassMonitor(QProgressBar* bar, StatusSink status, QWidget* formParent = nullptr);
  ~QtPassMonitor() override;
  QtPassMonitor(const QtPassMonitor&) = delete;
  QtPassMonitor& operator=(const QtPassMonitor&) = delete;

  void progressStart(long total) override;
  void progressValue(long value) override;
  void progressEnd() override;
  void pumpEvents() override;
  bool cancelRequested() const override;
  void clearCancel() override;
  void statusText(const char* text) override;

  // How often pending events run at most. The pass offers a yield after every line; running
  // the event loop for each of a million lines would cost more than the pass itself, and a key
  // press is still seen within this time.
  static constexpr int kPumpIntervalMs = 15;
  // How often the bar shows a new value at most (the last value always shows). The bar repaints
  // itself at once on every new value, which a long run's hundred steps would otherwise pay for.
  static constexpr int kValueIntervalMs = 40;

 private:
  QProgressBar* activeBar() const;

  QPointer<QProgressBar> bar_;
  StatusSink status_;
  QWidget* formParent_;
  std::unique_ptr<frmProg> form_;
  QPointer<QWidget> focusBefore_;  // while the progress form has the keys
  QElapsedTimer sincePump_;
  QElapsedTimer sinceValue_;
  bool showing_ = false;
};

// The hourglass for the length of a pass.
class BusyCursor {
 public:
  BusyCursor();
  ~BusyCursor();
  BusyCursor(const BusyCursor&) = delete;
  BusyCursor& operator=(const BusyCursor&) = delete;
};

}  // namespace lathwick::gui
