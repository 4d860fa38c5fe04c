#pragma once
// "Compare Motion With..." of the Options menu: the active document's motion against another
// open document's or a file's. The status bar gives the verdict and the caret goes to the line
// of the active document where the two part.
#include <string>

class QWidget;

namespace lathwick {
class CommandDispatcher;
class Workspace;
class WorkspaceDocument;
}  // namespace lathwick

namespace lathwick::gui {

inline constexpr const char* kCompareMotionTitle = "Compare Motion With";

void registerVerifyCommands(CommandDispatcher& commands, Workspace& workspace, QWidget* parent);

// The comparison once the other program is known: its plain text and the name to call it by.
void compareMotionWith(Workspace& workspace, WorkspaceDocument& active, const std::string& otherText,
                       const std::string& otherName);

}  // namespace lathwick::gui
