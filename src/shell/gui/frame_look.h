#pragma once
// How the frame looks: the toolbar's icons (the desktop's icon theme for the standard actions,
// the program's own drawings for its own commands), names under them or not, and the documents'
// line-number margin.
#include <QIcon>
#include <string>

class QWidget;

namespace lathwick::gui {

// The theme the standard icons come from when the desktop names none (or lacks an icon):
// Adwaita, which the program's package depends on.
inline constexpr const char* kFallbackIconTheme = "Adwaita";
void useFallbackIconTheme();

// The icon of a toolbar button by its key ("New", "Codes"...); an empty icon for unknown keys.
QIcon toolbarIcon(const std::string& key);

// The program's own icon, for the windows (the installed desktop icon when there is one).
QIcon applicationIcon();

// Shows or hides the line-number margin of a document's text control, wide enough for the
// control's line count.
void showLineNumbers(QWidget* textControl, bool on);

}  // namespace lathwick::gui
