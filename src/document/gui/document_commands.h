#pragma once
// The document windows' commands: File Close and Save, the Edit menu, the colour runs and the
// scheme menu, and the Options passes that need no dialog. Each runs on the active window.
namespace lathwick {
class CommandDispatcher;
}

namespace lathwick::gui {

class EditorHost;

void registerDocumentCommands(CommandDispatcher& commands, EditorHost& host);

}  // namespace lathwick::gui
