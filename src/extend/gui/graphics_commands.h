#pragma once
// The commands of the Graphics menu: "Show" (F11) opens the tool-path window for the active
// document, or brings it up to date with the document as it is now; "Setup" chooses the view,
// rapids and colours.
namespace lathwick::gui {

class MDIForm1;

void registerGraphicsCommands(MDIForm1& frame);

}  // namespace lathwick::gui
