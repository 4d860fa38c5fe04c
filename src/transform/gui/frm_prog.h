#pragma once
// The progress form of long passes that run without a dialog of their own (the colorizer's View
// commands): a progress bar in a small window. Esc on it sets the cancel flag; the pass, which
// lets window events run as it goes, stops after the line in hand.
#include <QDialog>

class QProgressBar;

namespace lathwick::gui {

class frmProg : public QDialog {
  Q_OBJECT
 public:
  explicit frmProg(QWidget* parent = nullptr);
  QProgressBar* bar() const { return bar_; }

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void reject() override;  // Esc and the window's close box cancel, they do not just hide

 private:
  QProgressBar* bar_;
};

}  // namespace lathwick::gui
