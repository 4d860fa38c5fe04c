// View Modes, View Codes and Reload of a document window: the document's plain text goes to the
// input work file, the colorizer writes the output work file, and the result comes back in
// through reloadDocument, after which Undo can bring the text before it back.
#include "document/document_table.h"
#include "document/gui/editor_host.h"
#include "document/gui/frm_editor.h"
#include "format/colorizer.h"

namespace lathwick::gui {

void frmEditor::Colorize(int view) {
  if (view == 2) {
    // Reload: the document's own plain text comes back, without its colours.
    if (savePlainText(inputWorkFile())) takeOutput(*this, inputWorkFile(), ReloadFormat::Plain);
    return;
  }
  const SchemeRecord* scheme = frame_.currentSchemeRecord();
  if (!scheme) {
    frame_.reportDataFileProblem();
    return;
  }
  const ColorizeView by = view == 0 ? ColorizeView::Modes : ColorizeView::Codes;
  runMenuPass(
      [this, scheme, by](const std::string& in, const std::string& out, PassMonitor& monitor) {
        PassResult result = colorizeFile(*scheme, by, in, out, monitor);
        // The page takes the scheme's colours before the coloured text comes in.
        if (result.outcome == PassOutcome::Completed)
          text_->setColours(scheme->backColour, scheme->style(0, kOtherTextStyle).colour);
        return result;
      },
      ReloadFormat::Rich, std::nullopt);
}

}  // namespace lathwick::gui
