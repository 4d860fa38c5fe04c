#pragma once
// frmEditor: one document window inside the frame. It holds the text control, its own menus
// (shown in the frame's menu bar while the window is active), the record index in its tag, and
// the per-window state: file-undoable flag and the line kept by Cut Line.
#include <QWidget>
#include <memory>
#include <string>

#include "document/gui/reload_document.h"
#include "document/gui/text_control.h"
#include "transform/gui/document_pass.h"
#include "transform/gui/transform_target.h"
#include "workspace/workspace.h"

namespace lathwick {
struct DocumentRecord;
class RichTextBox;
class UndoSnapshot;
}

namespace lathwick::gui {

class EditorHost;
class MenuSet;
class RichTextControl;

class frmEditor : public QWidget, public TransformTarget, public WorkspaceDocument {
  Q_OBJECT
 public:
  frmEditor(EditorHost& frame, int tag);
  ~frmEditor() override;

  int tag() const { return tag_; }
  DocumentRecord& record() const;
  TextControl& rtfTextBox() const { return *text_; }
  RichTextBox& richTextBox() const;  // the control itself, formats and all
  MenuSet& menus() const { return *menus_; }

  // The preparation routine: brings the window up before its text arrives.
  void prepare();

  std::string filename() const;
  int LineCount() const { return text_->lineCount(); }
  int currentLine() const { return text_->lineFromChar(text_->selStart()); }
  bool FileUndoable() const { return undoable_.get(); }
  void setFileUndoable(bool undoable) override;  // true clears the flag on every other window first

  // The one way a whole-document result enters the window: the present text goes to the undo
  // file first (unless the undo file itself is loaded) and the view is kept. False when the load
  // did not complete. The caller marks the window file-undoable afterwards.
  bool reloadDocument(const std::string& path, TextKind kind);
  // The scheme's default text style a reload starts from.
  DefaultTextStyle defaultTextStyle() const;

  void ShowLineNum();
  void En_Dis_able();
  // A script has finished: the view shows the caret again and the menus catch up.
  void scriptEnded();
  void Form_Activate();
  bool Save();  // false when nothing was saved

  // Colours the document by modes (0) or codes (1), or reloads it as it is (2), through the work
  // files and reloadDocument.
  void Colorize(int view);

  // Fills the scheme menu from the scheme data file, the document's own scheme checked.
  void LoadMenuArray();
  // The scheme menu entry `index` was chosen: the document takes that scheme and is coloured
  // in it by modes.
  void applyScheme(int index);
  // The caption of the scheme menu entry of the current scheme ("" when there is none).
  std::string Scheme() const;
  // Chooses the scheme menu entry captioned `name` (nothing happens for an unknown name).
  void setScheme(const std::string& name) override;

  // Editing commands (the Edit menu and the toolbar)
  void Undo();
  void Cut();
  void Copy();
  void Paste();
  void deleteKey();
  void cutLine();
  void cutToEnd();
  void pasteLine();
  void appendClipboard();
  void selectAll();
  void getLastSelection();
  void changeCase(int which);  // 0 upper, 1 lower, 2 title

  // The plain-text passes of the Options menu, through the work files and reloadDocument.
  void AddSpaces();
  void RemoveSpaces();
  void JunkFilter();

  // What the transformation dialogs see of the document.
  long textLength() const override;
  long selectionStart() const override;
  long selectionLength() const override;
  std::string selectedText() const override;
  long lineFromChar(long position) const override;
  long lineCount() const override;
  bool savePlainText(const std::string& path) override;
  bool reloadDocument(const std::string& path, ReloadFormat format) override;
  void beginPassSnapshot() override;
  void endPassSnapshot() override;
  void undo() override { Undo(); }
  void setStatusText(const std::string& text) override;
  PassFrame passFrame() const override;
  std::string commentStartText() const override;
  std::string inputWorkFile() const override;
  std::string outputWorkFile() const override;
  long find(std::string_view text, long start, long end, int flags) override;
  void replaceSelection(std::string_view text) override;

  // What commands and scripts see of the document (the rest is shared with the dialogs' view).
  std::string text() const override;
  std::string textRange(long start, long length) const override;
  void setSelection(long start, long length) override;
  long lineIndex(long line) const override;
  long lineLength(long line) const override;
  std::string fileName() const override { return filename(); }
  bool save() override { return Save(); }
  std::string scheme() const override { return Scheme(); }
  void colorize(ColorizeRun run) override { Colorize(static_cast<int>(run)); }
  void runPass(DocumentPassKind pass) override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void changeEvent(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void onTextChanged();
  void onSelectionChanged();
  bool handleAltKey(int key);
  // Runs a pass of the Options menu or a colour view through the frame's progress form.
  void runMenuPass(const DocumentPass& pass, ReloadFormat output, std::optional<PassKind> notify);

  EditorHost& frame_;
  int tag_;
  RichTextControl* rich_;
  TextControl* text_;
  std::unique_ptr<MenuSet> menus_;
  lathwick::FileUndoable undoable_;
  std::string cutLine_;  // rich text of the last line Cut Line removed
  std::unique_ptr<UndoSnapshot> passSnapshot_;  // being written while a pass runs
};

}  // namespace lathwick::gui
