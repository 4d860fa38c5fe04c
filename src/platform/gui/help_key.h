#pragma once
// F1 in a dialog opens that dialog's page of the HTML help, in the system's browser.
#include <string>

class QWidget;

namespace lathwick::gui {

// The folder of the help pages (the application folder's "help/"); set once the folder is known.
void setHelpFolder(const std::string& folder);
std::string helpFolder();

// Opens a page of the help ("renumber.html"); a missing page is reported in a message box.
void openHelpPage(const std::string& page);

// Makes F1 anywhere in `window` open `page`.
void addHelpKey(QWidget* window, const std::string& page);

}  // namespace lathwick::gui
