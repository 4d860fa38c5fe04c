#include "shell/gui/frm_prog.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QProgressBar>
#include <QVBoxLayout>

#include "shell/gui/mdi_form.h"
#include "shell/gui/status_panels.h"

namespace lathwick::gui {

frmProg::frmProg(QWidget* parent, bool& cancelFlag) : QDialog(parent), bar_(new QProgressBar(this)), cancel_(cancelFlag) {
  setObjectName(QStringLiteral("frmProg"));
  setWindowTitle(QStringLiteral("Processing..."));
  setModal(false);
  auto* layout = new QVBoxLayout(this);
  layout->addWidget(bar_);
  auto* buttons = new QDialogButtonBox(QDialogButtonBox::Cancel, this);
  connect(buttons, &QDialogButtonBox::rejected, this, &frmProg::reject);
  layout->addWidget(buttons);
  setMinimumWidth(360);
}

void frmProg::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    cancel_ = true;
    return;
  }
  QDialog::keyPressEvent(event);
}

void frmProg::reject() { cancel_ = true; }  // the pass closes the form when it stops

FramePassMonitor::FramePassMonitor(MDIForm1& frame) : frame_(frame) {
  frame_.setPassRunning(true);
  QApplication::setOverrideCursor(Qt::WaitCursor);
}

FramePassMonitor::~FramePassMonitor() {
  progressEnd();
  frame_.setPassRunning(false);
  QApplication::restoreOverrideCursor();
}

void FramePassMonitor::progressStart(long total) {
  frmProg& form = frame_.progressForm();
  form.bar()->setRange(0, static_cast<int>(total));
  form.bar()->setValue(0);
  form.show();
}

void FramePassMonitor::progressValue(long value) { frame_.progressForm().bar()->setValue(static_cast<int>(value)); }

void FramePassMonitor::progressEnd() {
  if (frame_.hasProgressForm()) frame_.progressForm().hide();
}

void FramePassMonitor::pumpEvents() { QApplication::processEvents(); }
bool FramePassMonitor::cancelRequested() const { return frame_.cancelFlag(); }
void FramePassMonitor::clearCancel() { frame_.cancelFlag() = false; }

void FramePassMonitor::statusText(const char* text) {
  frame_.statusPanels().setText("Stat", text);
  QApplication::processEvents(QEventLoop::ExcludeUserInputEvents);  // show it before the work starts
}

}  // namespace lathwick::gui
