#pragma once
// frmEasyText ("Easy Text"): the snippet library. A category box lists the "*.dis" files of
// DatLocation, the list their snippets, and the text box the chosen snippet's text, which can be
// edited and saved, inserted into the active document or copied. The category and snippet
// chosen last are shown again the next time it opens. It stays open beside the documents.
#include <QDialog>
#include <functional>
#include <string>

#include "extend/easy_text.h"

namespace lathwick {
class WorkspaceDocument;
}

class QAction;
class QComboBox;
class QLayout;
class QListWidget;
class QMenuBar;
class QPlainTextEdit;
class QPushButton;

namespace lathwick::gui {

// What the dialog remembers for as long as the program runs.
struct EasyTextMemory {
  std::string category;
  std::string snippet;
};

class frmEasyText : public QDialog {
  Q_OBJECT
 public:
  // `activeDocument` gives the active document, or nullptr when none is open.
  frmEasyText(const std::string& datLocation, EasyTextMemory& memory,
              std::function<WorkspaceDocument*()> activeDocument, QWidget* parent = nullptr);

  // Fills the category box and shows the category and snippet chosen last.
  void showRemembered();
  const extend::CategoryList& category() const { return list_; }

 private:
  void buildControls();
  QMenuBar* makeMenu();
  QLayout* makeButtonRow();
  QAction* menuAction(const char* object, const char* caption, void (frmEasyText::*slot)());
  void loadCategory(int comboIndex);
  void fillSections();
  int selectedPosition() const;
  void onSectionChosen();
  void setSnippetCommands(bool on);
  std::string editText() const;  // the text box's text with CR LF line ends
  void onInsert();
  void onCopy();
  void onNew();
  void onSave();
  void onDelete();
  void report(const std::optional<std::string>& message);

  extend::CategoryList list_;
  EasyTextMemory& memory_;
  std::function<WorkspaceDocument*()> activeDocument_;
  QComboBox* cboFileName_;
  QListWidget* lstSections_;
  QPlainTextEdit* txtEdit_;
  QPushButton* cmdInsert_;
  QPushButton* cmdCopy_;
  QPushButton* cmdExit_;
  QAction* mnuNew_;
  QAction* mnuSave_;
  QAction* mnuDelete_;
  QAction* mnuExit_;
};

}  // namespace lathwick::gui
