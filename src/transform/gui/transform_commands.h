#pragma once
// The transformation dialogs' commands: Find, Replace, Set Search/Replace, Resequence and
// Operate, each on the document the frame names as active (none: nothing happens).
#include <functional>

namespace lathwick {
class CommandDispatcher;
}

namespace lathwick::gui {

class TransformDialogs;
class TransformTarget;

using ActiveTarget = std::function<TransformTarget*()>;

void registerTransformCommands(CommandDispatcher& commands, TransformDialogs& dialogs, ActiveTarget active);

}  // namespace lathwick::gui
