#pragma once
// The one process-wide cancel flag of the long passes. A pass clears it when it starts and reads
// it after each line; the dialogs' Cancel buttons, Esc on the progress form and the main
// window's status bar set it. Only the user-interface thread touches it.

namespace lathwick::gui {

void requestCancel();
void clearCancel();
bool cancelRequested();

}  // namespace lathwick::gui
