#pragma once
// The "Operate" dialog: arithmetic on the values of chosen address letters over the operation
// range, each new value written with a numeric picture and marked in the highlight colour. The
// fields keep histories; the address and operator are also kept in the settings section
// "Operate".
#include <QDialog>

#include "platform/settings_store.h"
#include "transform/operate.h"
#include "transform/operation_range.h"

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;

namespace lathwick::gui {

class TransformTarget;

inline constexpr int kOperateHistoryLength = 10;

class frmOperate : public QDialog {
  Q_OBJECT
 public:
  explicit frmOperate(SettingsStore& settings, QWidget* parent = nullptr);

  // Binds the dialog to `target`, loads the fields, takes the range from the selection (a range
  // inside one line stays a range) and shows the dialog (window-modal; returns at once).
  void showFor(TransformTarget& target);
  void forget(const TransformTarget* target);
  // As a macro runs it: bound to `target` with its range, the entries put in, OK pressed, and
  // the dialog closed again without being shown.
  void runUnattended(TransformTarget& target, const transform::OperateEntries& entries);

  const transform::OperationRange& range() const { return range_; }

 protected:
  void reject() override;  // Esc and the close box act as Cancel

 private:
  void loadFields();
  void onOperatorChosen();
  void onOK();
  void onUndo();

  SettingsStore& settings_;
  TransformTarget* target_ = nullptr;
  transform::OperationRange range_;

  QComboBox* cboAddress_;
  QComboBox* cboOperators_;
  QComboBox* cboValue_;
  QComboBox* cboFormat_;
  QPushButton* cmdOK_;
  QPushButton* cmdCancel_;
  QPushButton* cmdUndo_;
  QLabel* lblRange_;
  QLabel* lblStatus_;
  QProgressBar* progOperate_;
};

}  // namespace lathwick::gui
