#include "transform/gui/frm_prog.h"

#include <QKeyEvent>
#include <QLabel>
#include <QProgressBar>
#include <QVBoxLayout>

#include "platform/gui/help_key.h"
#include "transform/gui/cancel_flag.h"

namespace lathwick::gui {

frmProg::frmProg(QWidget* parent) : QDialog(parent) {
  addHelpKey(this, "index.html");
  setObjectName("frmProg");
  setWindowTitle("Processing...");
  auto* layout = new QVBoxLayout(this);
  auto* hint = new QLabel("Press [Esc] to cancel", this);
  hint->setObjectName("lblHint");
  bar_ = new QProgressBar(this);
  bar_->setObjectName("ProgressBar1");
  layout->addWidget(hint);
  layout->addWidget(bar_);
  setMinimumWidth(320);
}

void frmProg::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape) {
    requestCancel();
    event->accept();
    return;
  }
  QDialog::keyPressEvent(event);
}

void frmProg::reject() { requestCancel(); }

}  // namespace lathwick::gui
