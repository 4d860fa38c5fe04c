#pragma once
// frmProg, the progress form of a long pass, and the monitor through which a pass reports to
// the frame: progress, pending window events, the status text and the process-wide cancel flag
// (set by Esc or by the form's Cancel button).
#include <QDialog>

#include "platform/pass_monitor.h"

class QProgressBar;

namespace lathwick::gui {

class MDIForm1;

class frmProg : public QDialog {
  Q_OBJECT
 public:
  frmProg(QWidget* parent, bool& cancelFlag);
  QProgressBar* bar() const { return bar_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override;  // Esc and the Cancel button: ask the pass to stop

 private:
  QProgressBar* bar_;
  bool& cancel_;
};

class FramePassMonitor : public PassMonitor {
 public:
  explicit FramePassMonitor(MDIForm1& frame);
  ~FramePassMonitor() override;
  void progressStart(long total) override;
  void progressValue(long value) override;
  void progressEnd() override;
  void pumpEvents() override;
  bool cancelRequested() const override;
  void clearCancel() override;
  void statusText(const char* text) override;

 private:
  MDIForm1& frame_;
};

}  // namespace lathwick::gui
