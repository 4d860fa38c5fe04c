#pragma once
// The "Search And Replace" dialog: the find and replace texts with their histories, the search
// method check boxes, OK for use with F3 and F4, and the Replace All and Highlight All passes
// over the operation range.
//
// The dialog outlives one use: OK hides it and its entries serve F3 and F4 until a search runs
// to its end or the user cancels, which unload it (the flags are stored, the entries dropped).
// The next use loads it again. It is shown window-modal and returns at once; the work happens
// in its buttons.
#include <QDialog>
#include <array>
#include <string>

#include "platform/settings_store.h"
#include "transform/find_next.h"
#include "transform/operation_range.h"

class QCheckBox;
class QComboBox;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;

namespace lathwick::gui {

class TransformTarget;

inline constexpr const char* kSearchHelpLine =
    "Enter the text and press OK. Then use the F3 key to find the text and the F4 key to replace it.";

class frmSearch : public QDialog {
  Q_OBJECT
 public:
  explicit frmSearch(SettingsStore& settings, QWidget* parent = nullptr);
  ~frmSearch() override;

  // Shows the dialog for `target`: histories loaded, entries cleared, the range taken from the
  // selection (a selection inside one line becomes the find text instead).
  void showFor(TransformTarget& target);
  // F3: finds the next occurrence in the range; with no find text, shows the dialog.
  void findNext(TransformTarget& target);
  // F4: replaces the occurrence found last and finds the next one.
  void replaceNext(TransformTarget& target);
  // Drops the dialog's entries and starts afresh (which shows it).
  void setSearchReplace(TransformTarget& target);
  // The document is going away: the dialog lets go of it.
  void forget(const TransformTarget* target);

  int searchFlags() const { return flags_; }
  const transform::FindNextState& searchState() const { return state_; }
  const transform::OperationRange& range() const { return range_; }

 protected:
  void reject() override;  // Esc and the close box act as Cancel

 private:
  QLayout* makeFields();
  QLayout* makeChecks();
  QLayout* makeButtons();
  void load();
  void unload();
  void bind(TransformTarget& target);
  void readFlags();
  void flagsFromChecks();
  void saveHistories();
  void act(transform::FindStep step);
  void runPass(bool highlight);

  void onOK();
  void onReplaceAll();
  void onHighlight();
  void onUndo();
  void onCancel();

  SettingsStore& settings_;
  TransformTarget* target_ = nullptr;
  bool loaded_ = false;
  int flags_ = 0;
  transform::FindNextState state_;
  transform::OperationRange range_;

  QComboBox* cboFind_;
  QComboBox* cboReplace_;
  std::array<QCheckBox*, 3> chkSearchMethod_;
  QPushButton* cmdOK_;
  QPushButton* cmdReplaceAll_;
  QPushButton* cmdHighlight_;
  QPushButton* cmdUndo_;
  QPushButton* cmdCancel_;
  QLabel* lblRange_;
  QLabel* lblStatus_;
  QProgressBar* progReplace_;
};

}  // namespace lathwick::gui
