// The Edit menu of a document window: clipboard, line and case commands, and undo.
#include <QClipboard>
#include <QGuiApplication>

#include "document/case_change.h"
#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/frm_editor.h"
#include "document/gui/rich_text_control.h"
#include "platform/bytes.h"

namespace lathwick::gui {
namespace {
QClipboard& clipboard() { return *QGuiApplication::clipboard(); }
}  // namespace

void frmEditor::Undo() {
  // From the undo file when the last whole-text change was this window's (its changed flag kept
  // as it was), otherwise the control's own last edit.
  UndoDocument(rich_->box(), undoable_, record().changed, defaultTextStyle(), frame_.editorFiles().undo);
  ShowLineNum();
  En_Dis_able();
}

void frmEditor::Cut() { text_->cut(); }
void frmEditor::Copy() { text_->copy(); }
void frmEditor::Paste() { text_->paste(); }
void frmEditor::deleteKey() { text_->deleteForward(); }

void frmEditor::cutLine() {
  const int line = currentLine();
  const int first = text_->lineIndex(line);
  const int length = text_->lineLength(line);
  text_->setSelection(first, length);
  cutLine_ = rich_->box().selRtf();  // with its look, for Paste Line
  // The line's text and its break go together (CR LF, or a lone CR or LF; none on the last line).
  const int breakLength = line + 1 < text_->lineCount() ? text_->lineIndex(line + 1) - (first + length) : 0;
  text_->setSelection(first, length + breakLength);
  text_->replaceSelection({});
  ShowLineNum();
}

void frmEditor::cutToEnd() {
  const int start = text_->selStart();
  const int line = text_->lineFromChar(start);
  const int end = text_->lineIndex(line) + text_->lineLength(line);
  text_->setSelection(start, end - start);
  text_->replaceSelection({});
}

void frmEditor::pasteLine() {
  if (!cutLine_.empty()) rich_->box().setSelRtf(cutLine_);
  text_->replaceSelection("\r\n");
  ShowLineNum();
}

void frmEditor::appendClipboard() {
  const std::string former = clipboard().text().toLatin1().toStdString();
  const std::string joined = former + "\r\n" + text_->selText();
  clipboard().clear();
  clipboard().setText(QString::fromLatin1(joined.data(), static_cast<qsizetype>(joined.size())));
}

void frmEditor::selectAll() { text_->setSelection(0, text_->textLength()); }

void frmEditor::getLastSelection() {
  const LastSelection& last = frame_.lastSelection();
  text_->setSelection(last.start, last.length);
  ShowLineNum();
}

void frmEditor::changeCase(int which) {
  const int start = text_->selStart();
  const std::string selected = text_->selText();
  if (selected.empty()) return;
  const std::string changed = which == 0 ? asciiUpper(selected) : which == 1 ? asciiLower(selected) : properCase(selected);
  text_->replaceSelection(changed);
  text_->setSelection(start, static_cast<int>(changed.size()));
}

}  // namespace lathwick::gui
