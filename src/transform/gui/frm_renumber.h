#pragma once
// The "Renumber File" dialog: start number, increment, method, sequence character, the
// characters that mark lines to skip and "Update references", kept in the settings section
// "Numbering". OK renumbers the operation range and closes the dialog.
#include <QDialog>
#include <array>

#include "platform/settings_table.h"
#include "transform/operation_range.h"

class QCheckBox;
class QLabel;
class QLayout;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace lathwick::gui {

class TransformTarget;

class frmRenumber : public QDialog {
  Q_OBJECT
 public:
  // Reads the "Numbering" settings; they are written back whenever the dialog closes.
  explicit frmRenumber(SettingsStore& settings, QWidget* parent = nullptr);

  // Binds the dialog to `target`, takes the range from its selection and shows the dialog
  // (window-modal; returns at once).
  void showFor(TransformTarget& target);
  void forget(const TransformTarget* target);

  int method() const { return method_; }
  const transform::OperationRange& range() const { return range_; }

 protected:
  void reject() override;
  void done(int result) override;

 private:
  QLayout* makeFields(const NumberingSettings& stored);
  QWidget* makeMethods();
  void onOK();
  void saveSettings();

  SettingsStore& settings_;
  TransformTarget* target_ = nullptr;
  int method_ = 0;  // 0 to 2, from the settings
  transform::OperationRange range_;

  QLineEdit* txtStart_;
  QLineEdit* txtStep_;
  QLineEdit* txtSeqChr_;
  QLineEdit* txtSkipLines_;
  std::array<QRadioButton*, 3> Option1_;
  QCheckBox* chkReferences_;
  QLabel* lblRange_;
  QPushButton* cmdOK_;
  QPushButton* Command1_;
};

}  // namespace lathwick::gui
