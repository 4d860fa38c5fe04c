// View Modes, View Codes and Reload of a document window: the document's plain text goes to the
// input work file, the colorizer writes the output work file, and the result comes back in
// through reloadDocument, after which Undo can bring the text before it back.
#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/frm_editor.h"
#include "document/line_ending_checks.h"
#include "format/colorizer.h"
#include "platform/gui/dialogs.h"
#include "transform/gui/qt_pass_monitor.h"
#include "workspace/pass_report.h"

namespace lathwick::gui {

void frmEditor::Colorize(int view) {
  const EditorFiles& files = frame_.editorFiles();
  try {
    text_->saveFile(files.input, TextKind::Plain, Durability::Scratch);
  } catch (const std::exception&) {
    return;  // no input file: the run does nothing and says nothing
  }
  if (view == 2) {
    if (reloadDocument(files.input, TextKind::Plain)) setFileUndoable(true);
    return;
  }
  const SchemeRecord* scheme = frame_.currentSchemeRecord();
  if (!scheme) {
    frame_.reportDataFileProblem();
    return;
  }
  ColorizeResult result;
  {
    BusyCursor busy;
    frame_.setPassRunning(true);
    QtPassMonitor monitor(nullptr, [this](const std::string& text) { frame_.setPanelText("Stat", text); },
                          frame_.frameWidget());
    result = colorizeFile(*scheme, view == 0 ? ColorizeView::Modes : ColorizeView::Codes, files.input,
                          files.output, monitor);
    frame_.setPassRunning(false);
  }
  frame_.setPanelText("Stat", kReadyStatus);
  if (result.outcome == ColorizeOutcome::Done) {
    text_->setColours(result.backColour, scheme->style(0, kOtherTextStyle).colour);
    if (reloadDocument(files.output, TextKind::Rich)) setFileUndoable(true);
    return;
  }
  const PassReport report = reportOf(result);
  if (report.shown) dialogs().message(report.text, report.caption, Buttons::Ok, report.icon);
}

}  // namespace lathwick::gui
