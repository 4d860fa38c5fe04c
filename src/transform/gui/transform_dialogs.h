#pragma once
// The main window's handle on the transformation dialogs: one search dialog that lives as long
// as the window (its entries serve F3 and F4), and a renumber or operate dialog made afresh for
// each use, so that each reads its settings when it opens and stores them when it closes.
#include <QPointer>

#include "platform/settings_store.h"
#include "transform/operate.h"

class QWidget;

namespace lathwick::gui {

class TransformTarget;
class frmSearch;
class frmRenumber;
class frmOperate;

class TransformDialogs {
 public:
  TransformDialogs(SettingsStore& settings, QWidget* mainWindow);
  ~TransformDialogs();
  TransformDialogs(const TransformDialogs&) = delete;
  TransformDialogs& operator=(const TransformDialogs&) = delete;

  void showSearch(TransformTarget& target);        // the dialog itself
  void findNext(TransformTarget& target);          // "&Find", F3
  void replaceNext(TransformTarget& target);       // "&Replace", F4
  void setSearchReplace(TransformTarget& target);  // "&Set Search/Replace"
  void renumber(TransformTarget& target);          // mnuResequence
  void operate(TransformTarget& target);           // Operate
  // Operate as a macro runs it: the dialog's OK with these entries, the dialog never shown.
  void operateUnattended(TransformTarget& target, const transform::OperateEntries& entries);

  // A document window is closing: every dialog bound to it lets go and closes.
  void forget(const TransformTarget* target);

  frmSearch& search();

 private:
  SettingsStore& settings_;
  QWidget* mainWindow_;
  QPointer<frmSearch> search_;  // a child of the main window, which may go first
  QPointer<frmRenumber> renumber_;
  QPointer<frmOperate> operate_;
};

}  // namespace lathwick::gui
