// The document window as the transformation dialogs and passes see it, and the Options menu's
// plain-text passes (add and remove spaces, junk filter) run from the window.
#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/frm_editor.h"
#include "document/gui/rich_text_control.h"
#include "format/pass_frame.h"
#include "platform/bytes.h"
#include "transform/find_next.h"
#include "transform/junk_filter.h"
#include "transform/spaces.h"
#include "transform/gui/document_pass.h"
#include "transform/gui/pass_observer.h"
#include "transform/gui/qt_pass_monitor.h"

namespace lathwick::gui {

long frmEditor::textLength() const { return text_->textLength(); }
long frmEditor::selectionStart() const { return text_->selStart(); }
std::string frmEditor::selectedText() const { return text_->selText(); }
long frmEditor::lineFromChar(long position) const { return text_->lineFromChar(static_cast<int>(position)); }
long frmEditor::lineCount() const { return text_->lineCount(); }
std::string frmEditor::text() const { return text_->text(); }
std::string frmEditor::textRange(long start, long length) const {
  return text_->textRange(static_cast<int>(start), static_cast<int>(length));
}
void frmEditor::setSelection(long start, long length) {
  if (frame_.scriptRunning()) text_->holdCaretScrolling(true);
  text_->setSelection(static_cast<int>(start), static_cast<int>(length));
}
long frmEditor::lineIndex(long line) const { return text_->lineIndex(static_cast<int>(line)); }
long frmEditor::lineLength(long line) const { return text_->lineLength(static_cast<int>(line)); }

bool frmEditor::savePlainText(const std::string& path) {
  try {
    text_->saveFile(path, TextKind::Plain, Durability::Scratch);  // the input work file of a pass
    return true;
  } catch (const std::exception&) {
    return false;
  }
}

void frmEditor::reloadDocument(const std::string& path, ReloadFormat format) {
  reloadDocument(path, format == ReloadFormat::Rich ? TextKind::Rich : TextKind::Plain);
}

void frmEditor::scriptEnded() {
  text_->holdCaretScrolling(false);
  if (frame_.activeEditor() == this) En_Dis_able();
}

void frmEditor::setStatusText(const std::string& text) { frame_.setPanelText("Stat", text); }

PassFrame frmEditor::passFrame() const {
  const SchemeRecord* scheme = frame_.currentSchemeRecord();
  return scheme ? makePassFrame(*scheme) : PassFrame{};
}

std::string frmEditor::commentStartText() const {
  const SchemeRecord* scheme = frame_.currentSchemeRecord();
  return scheme ? trimBlanks(scheme->style(0, kCommentStyle).marker) : std::string("(");
}

std::string frmEditor::inputWorkFile() const { return frame_.editorFiles().input; }
std::string frmEditor::outputWorkFile() const { return frame_.editorFiles().output; }

long frmEditor::find(std::string_view text, long start, long end, int flags) {
  const long at = transform::findInText(text_->text(), text, start, end, flags);
  if (at >= 0) {
    text_->setSelection(static_cast<int>(at), static_cast<int>(text.size()));
    ShowLineNum();
  }
  return at;
}

void frmEditor::replaceSelection(std::string_view text) {
  if (frame_.scriptRunning()) text_->holdCaretScrolling(true);
  const int start = text_->selStart();
  text_->replaceSelection(std::string(text));
  text_->setSelection(start, static_cast<int>(text.size()));
}

void frmEditor::showPassResult(const transform::PassResult& result) {
  using transform::PassOutcome;
  setStatusText(transform::kStatusReady);
  switch (result.outcome) {
    case PassOutcome::Completed:
      if (result.reload) {
        reloadDocument(outputWorkFile(), TextKind::Plain);
        setFileUndoable(true);
        notifyPassDone(*this, PassKind::KeepsMotion);
      }
      break;
    case PassOutcome::NoInput:  // the input could not be written or read: nothing is said
    case PassOutcome::Cancelled:
    case PassOutcome::Refused:
    case PassOutcome::Failed:
      reportPassOutcome(result);
      break;
  }
}

namespace {
// Runs a plain pass of the window's document from the input to the output work file.
template <typename Pass>
transform::PassResult runPlainPass(frmEditor& window, EditorHost& frame, Pass pass) {
  if (!window.savePlainText(window.inputWorkFile())) {
    transform::PassResult none;
    none.outcome = transform::PassOutcome::NoInput;
    return none;
  }
  BusyCursor busy;
  frame.setPassRunning(true);
  QtPassMonitor monitor(nullptr, [&window](const std::string& text) { window.setStatusText(text); }, frame.frameWidget());
  transform::PassResult result = pass(monitor);
  frame.setPassRunning(false);
  return result;
}
}  // namespace

void frmEditor::AddSpaces() {
  showPassResult(runPlainPass(*this, frame_, [this](PassMonitor& monitor) {
    return transform::runAddSpaces(inputWorkFile(), outputWorkFile(), commentStartText(), monitor);
  }));
}

void frmEditor::RemoveSpaces() {
  showPassResult(runPlainPass(*this, frame_, [this](PassMonitor& monitor) {
    return transform::runRemoveSpaces(inputWorkFile(), outputWorkFile(), commentStartText(), monitor);
  }));
}

void frmEditor::runPass(DocumentPassKind pass) {
  switch (pass) {
    case DocumentPassKind::AddSpaces:
      return AddSpaces();
    case DocumentPassKind::RemoveSpaces:
      return RemoveSpaces();
    case DocumentPassKind::JunkFilter:
      return JunkFilter();
  }
}

void frmEditor::JunkFilter() {
  showPassResult(runPlainPass(*this, frame_, [this](PassMonitor& monitor) {
    return transform::runJunkFilter(inputWorkFile(), outputWorkFile(), monitor);
  }));
}

}  // namespace lathwick::gui
