#include "transform/gui/qt_pass_monitor.h"

#include <QApplication>
#include <QCoreApplication>
#include <QProgressBar>
#include <climits>

#include "transform/gui/cancel_flag.h"
#include "transform/gui/frm_prog.h"

namespace lathwick::gui {

namespace {
int barValue(long v) { return v > INT_MAX ? INT_MAX : static_cast<int>(v); }
}  // namespace

QtPassMonitor::QtPassMonitor(QProgressBar* bar, StatusSink status, QWidget* formParent)
    : bar_(bar), status_(std::move(status)), formParent_(formParent) {}

QtPassMonitor::~QtPassMonitor() { progressEnd(); }

QProgressBar* QtPassMonitor::activeBar() const { return form_ ? form_->bar() : bar_.data(); }

void QtPassMonitor::progressStart(long total) {
  if (!bar_ && !form_) {
    focusBefore_ = QApplication::focusWidget();
    form_ = std::make_unique<frmProg>(formParent_);
    form_->setModal(true);
  }
  QProgressBar* bar = activeBar();
  if (!bar) return;
  bar->setMaximum(barValue(total));
  bar->setValue(0);
  if (form_) form_->show();
  else bar->show();
  showing_ = true;
}

void QtPassMonitor::progressValue(long value) {
  QProgressBar* bar = activeBar();
  if (!bar || !showing_) return;
  const int shown = barValue(value);
  if (sinceValue_.isValid() && sinceValue_.elapsed() < kValueIntervalMs && shown < bar->maximum()) return;
  bar->setValue(shown);
  sinceValue_.start();
}

void QtPassMonitor::progressEnd() {
  if (!showing_) return;
  showing_ = false;
  if (form_) {
    form_->hide();
    form_.reset();
    // The keys go back where they were typed before the pass (the document, as a rule).
    // Closing the modal form leaves no window active, so activate the typing window first.
    if (focusBefore_) {
      focusBefore_->window()->activateWindow();
      focusBefore_->setFocus(Qt::OtherFocusReason);
    }
  } else if (bar_) {
    bar_->hide();
  }
}

void QtPassMonitor::pumpEvents() {
  if (sincePump_.isValid() && sincePump_.elapsed() < kPumpIntervalMs) return;
  QCoreApplication::processEvents();
  sincePump_.start();
}

bool QtPassMonitor::cancelRequested() const { return gui::cancelRequested(); }
void QtPassMonitor::clearCancel() { gui::clearCancel(); }

void QtPassMonitor::statusText(const char* text) {
  if (status_) status_(text);
}

BusyCursor::BusyCursor() { QApplication::setOverrideCursor(Qt::WaitCursor); }
BusyCursor::~BusyCursor() { QApplication::restoreOverrideCursor(); }

}  // namespace lathwick::gui
