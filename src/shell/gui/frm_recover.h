#pragma once
// frmRecover: the documents that an editor which ended without closing them left unsaved,
// offered at the next start. Each is listed with its file (or that it was never saved) and the
// time of its copy, ticked; Open opens the ticked ones, Discard throws their copies away, Keep
// for Later leaves everything to be offered again at the next start. What is not ticked is kept.
#include <QDialog>
#include <vector>

#include "document/recovery_store.h"

class QPushButton;
class QTreeWidget;

namespace lathwick::gui {

enum class RecoveryChoice { Open, Discard, KeepForLater };

class frmRecover : public QDialog {
  Q_OBJECT
 public:
  frmRecover(const std::vector<RecoveredDocument>& documents, QWidget* parent = nullptr);

  RecoveryChoice choice() const { return choice_; }
  std::vector<bool> ticked() const;  // one per document, in the order given

  QTreeWidget* lstDocuments() const { return list_; }
  QPushButton* button(RecoveryChoice choice) const;

 private:
  void choose(RecoveryChoice choice);
  void updateButtons();

  QTreeWidget* list_;
  QPushButton* open_;
  QPushButton* discard_;
  QPushButton* keep_;
  RecoveryChoice choice_ = RecoveryChoice::KeepForLater;
};

// "2024-05-01 14:03" in local time.
QString recoveryTimeText(std::int64_t secondsSince1970);

}  // namespace lathwick::gui
