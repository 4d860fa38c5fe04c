#pragma once
// frmSendTo ("Send-To List"): edits the list of external programs a document can be handed to.
// The list box shows the titles, each item carrying the index of its entry; Add, Remove and
// Save write the list (in the order shown) and read it back, moves reach the file with the next
// save. It is modal to the application but returns at once; the work happens in its buttons.
#include <QDialog>
#include <string>

#include "extend/send_to_list.h"

class QLineEdit;
class QListWidget;
class QPushButton;

namespace lathwick::gui {

class frmSendTo : public QDialog {
  Q_OBJECT
 public:
  explicit frmSendTo(const std::string& datName, QWidget* parent = nullptr);

  // Reads the list file into the list box; the read message when it cannot.
  void load();
  const extend::SendToList& list() const { return list_; }
  std::string DatName() const { return list_.DatName; }
  std::string ShellProgram(int index) const { return list_.ShellProgram(index); }
  std::string ShellParameters(int index) const { return list_.ShellParameters(index); }

 signals:
  void listSaved();  // the file was written: the send menus are rebuilt

 private:
  void buildControls();
  void fillList();
  int selectedPosition() const;
  extend::SendToEntry fields() const;
  void onItemClicked();
  void onTitleChanged();
  void onFieldChanged();
  void onAdd();
  void onRemove();
  void onSave();
  void onBrowse();
  void onMove(int direction);
  // Shows a refusal, or after a write brings the list and buttons up to date.
  void finish(const std::optional<std::string>& message, bool written);
  void updateMoves();

  extend::SendToList list_;
  QLineEdit* txtTitle_;
  QLineEdit* txtExePath_;
  QLineEdit* txtParameters_;
  QListWidget* lstSendTo_;
  QPushButton* cmdAdd_;
  QPushButton* cmdRemove_;
  QPushButton* cmdSave_;
  QPushButton* cmdBrowse_;
  QPushButton* cmdUp_;
  QPushButton* cmdDown_;
};

}  // namespace lathwick::gui
