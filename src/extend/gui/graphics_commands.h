#pragma once
// The commands of the Graphics menu: "Show" (F11) opens the tool-path window for the active
// document, or brings it up to date with the document as it is now; "Setup" chooses the view,
// rapids and colours.
namespace lathwick {
class CommandDispatcher;
class SettingsStore;
}

namespace lathwick::gui {

class EditorHost;

void registerGraphicsCommands(CommandDispatcher& commands, EditorHost& host, SettingsStore& settings);

}  // namespace lathwick::gui
