// View Modes, View Codes and Reload of a document window: the document's plain text goes to the
// input work file, the colorizer writes the output work file, and the result comes back in
// through reloadDocument, after which Undo can bring the text before it back.
#include "document/document_table.h"
#include "document/gui/frm_editor.h"
#include "document/line_ending_checks.h"
#include "format/colorizer.h"
#include "platform/gui/dialogs.h"
#include "shell/gui/mdi_form.h"
#include "shell/gui/status_panels.h"
#include "transform/gui/qt_pass_monitor.h"

namespace lathwick::gui {

void frmEditor::Colorize(int view) {
  const AppValues& values = frame_.values();
  try {
    text_->saveFile(values.Temp2File, TextKind::Plain);
  } catch (const std::exception&) {
    return;  // no input file: the run does nothing and says nothing
  }
  if (view == 2) {
    if (reloadDocument(values.Temp2File, TextKind::Plain)) setFileUndoable(true);
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
    QtPassMonitor monitor(nullptr, [this](const std::string& text) { frame_.statusPanels().setText("Stat", text); },
                          &frame_);
    result = colorizeFile(*scheme, view == 0 ? ColorizeView::Modes : ColorizeView::Codes, values.Temp2File,
                          values.Temp3File, monitor);
    frame_.setPassRunning(false);
  }
  frame_.statusPanels().setText("Stat", kReadyStatus);
  switch (result.outcome) {
    case ColorizeOutcome::Done:
      text_->setColours(result.backColour, scheme->style(0, kOtherTextStyle).colour);
      if (reloadDocument(values.Temp3File, TextKind::Rich)) setFileUndoable(true);
      break;
    case ColorizeOutcome::NoInput:
      break;
    case ColorizeOutcome::Refused:
      dialogs().message(kJunkFilterMessage, kAppTitle, Buttons::Ok, Icon::Information);
      break;
    case ColorizeOutcome::Cancelled:
      dialogs().message(kCancelMessage, kCancelTitle, Buttons::Ok, Icon::Information);
      break;
    case ColorizeOutcome::Failed:
      dialogs().message(result.message(), kAppTitle, Buttons::Ok, Icon::Exclamation);
      break;
  }
}

}  // namespace lathwick::gui
