// The document window as the transformation dialogs and passes see it, and the Options menu's
// plain-text passes (add and remove spaces, junk filter) run from the window.
#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/frm_editor.h"
#include "document/gui/rich_text_control.h"
#include "document/gui/undo_snapshot.h"
#include "format/pass_frame.h"
#include "platform/bytes.h"
#include "transform/find_next.h"
#include "transform/junk_filter.h"
#include "transform/spaces.h"
#include "transform/gui/document_pass.h"

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

bool frmEditor::reloadDocument(const std::string& path, ReloadFormat format) {
  return reloadDocument(path, format == ReloadFormat::Rich ? TextKind::Rich : TextKind::Plain);
}

void frmEditor::beginPassSnapshot() {
  passSnapshot_ = std::make_unique<UndoSnapshot>(rich_->box(), frame_.editorFiles().undo);
}

void frmEditor::endPassSnapshot() { passSnapshot_.reset(); }

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

void frmEditor::runMenuPass(const DocumentPass& pass, ReloadFormat output, std::optional<PassKind> notify) {
  PassRun run;
  run.parent = frame_.frameWidget();
  run.output = output;
  run.notify = notify;
  run.running = [this](bool running) { frame_.setPassRunning(running); };
  runDocumentPass(*this, run, pass);
}

void frmEditor::AddSpaces() {
  const std::string comment = commentStartText();
  runMenuPass(
      [&comment](const std::string& in, const std::string& out, PassMonitor& monitor) {
        return transform::runAddSpaces(in, out, comment, monitor);
      },
      ReloadFormat::Plain, PassKind::KeepsMotion);
}

void frmEditor::RemoveSpaces() {
  const std::string comment = commentStartText();
  runMenuPass(
      [&comment](const std::string& in, const std::string& out, PassMonitor& monitor) {
        return transform::runRemoveSpaces(in, out, comment, monitor);
      },
      ReloadFormat::Plain, PassKind::KeepsMotion);
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
  runMenuPass(
      [](const std::string& in, const std::string& out, PassMonitor& monitor) {
        return transform::runJunkFilter(in, out, monitor);
      },
      ReloadFormat::Plain, PassKind::KeepsMotion);
}

}  // namespace lathwick::gui
