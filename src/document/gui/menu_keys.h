#pragma once
// The document menu's keys belong to the menu: a Scintilla-based control lets go of any it binds
// itself (Ctrl+A, Ctrl+D and Ctrl+L among them).
class QsciScintilla;

namespace lathwick::gui {

void leaveMenuKeysToTheMenu(QsciScintilla& editor);

}  // namespace lathwick::gui
