#pragma once
// The frame's commands for printing a document and editing the schemes: Print Plain Text,
// Print Rich Text, the toolbar's Print button and Edit Schemes.
namespace lathwick::gui {

class MDIForm1;

void registerPrintAndSchemeCommands(MDIForm1& frame);

}  // namespace lathwick::gui
