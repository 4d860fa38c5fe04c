#pragma once
// frmSetup: the scheme editor. The user picks a scheme from the data file, chooses one of its
// fourteen fixed styles (the labels, with their names) or fourteen code styles (the boxes, in
// which the marker texts are typed), edits its font and colour, and saves, copies, adds or
// deletes schemes. A one-line preview shows the style being edited.
#include <QDialog>
#include <array>
#include <string>

#include "format/scheme_record.h"

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;

namespace lathwick {
class RichTextBox;
}

namespace lathwick::gui {

// What the scheme editor needs of the program around it.
class SetupHost {
 public:
  virtual ~SetupHost() = default;
  virtual std::string dataFilePath() const = 0;
  virtual std::string appFolder() const = 0;  // where the preview's sample file goes
  virtual long rememberedRecord() const = 0;  // the "record" setting
  virtual void rememberRecord(long record) = 0;
  // Records were added, renamed, changed or removed: the Scheme menus follow.
  virtual void schemesChanged() = 0;
  // The editor has closed on `record`: the active document takes that scheme's colours.
  virtual void editorClosed(long record) = 0;
};

class frmSetup : public QDialog {
  Q_OBJECT
 public:
  explicit frmSetup(SetupHost& host, QWidget* parent = nullptr);
  ~frmSetup() override;

  // The operations of the form, as its controls and menus run them.
  void chooseScheme(int listIndex);  // cboScheme
  void selectStyle(int set, int style);  // label1(i): set 0; text1(i): set 1
  void editStyle();                      // cmdEdit
  void NewRecord();                      // mnuNew
  bool saveRecord();                     // mnuSave; false when the data file refused it
  void copyRecord();                     // mnuCopy
  void RemoveRecord();                   // mnuDelete
  void ChangedMsg();                     // asks to save changes, when there are any
  void CheckForHidden();                 // warns of text the colour of the background

  const SchemeRecord& record() const { return record_; }
  long recordNumber() const { return recordNumber_; }
  bool changed() const { return changed_; }
  int editedSet() const { return set_; }
  int editedStyle() const { return style_; }

 protected:
  void closeEvent(QCloseEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void buildControls();
  QWidget* buildStyleGrid();
  void buildMenus();
  void loadList(long select);
  void readRecord(long number);
  void showRecord();
  void showStyles();
  void showSample();
  void markChanged() { changed_ = true; }
  void onNameEdited(const QString& text);
  void onMarkerEdited(int style, const QString& text);
  void onIndentChosen(int steps);
  void editFont();
  void editBackground();

  SetupHost& host_;
  SchemeRecord record_;
  long recordNumber_ = 0;  // 0: no record on show (an empty data file)
  int set_ = 0;
  int style_ = kOtherTextStyle;
  bool changed_ = false;
  bool filling_ = false;   // controls are being filled from the record, not edited
  QComboBox* cboScheme_ = nullptr;
  QComboBox* cboIndent_ = nullptr;
  std::array<QPushButton*, kStyleCount> label1_{};
  std::array<QLineEdit*, kStyleCount> text1_{};
  QLabel* lblFont_ = nullptr;
  RichTextBox* rtfSample_ = nullptr;
  QPushButton* cmdEdit_ = nullptr;
};

}  // namespace lathwick::gui
