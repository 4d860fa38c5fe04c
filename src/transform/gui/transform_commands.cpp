#include "transform/gui/transform_commands.h"

#include "transform/gui/transform_dialogs.h"
#include "transform/gui/transform_target.h"
#include "workspace/command_dispatch.h"

namespace lathwick::gui {

void registerTransformCommands(CommandDispatcher& commands, TransformDialogs& dialogs, ActiveTarget active) {
  using Member = void (TransformDialogs::*)(TransformTarget&);
  const auto onActive = [&dialogs, active](Member member) {
    return [&dialogs, active, member](int) {
      if (TransformTarget* target = active()) (dialogs.*member)(*target);
    };
  };
  commands.add("mnuFind", onActive(&TransformDialogs::findNext));
  commands.add("mnuReplace", onActive(&TransformDialogs::replaceNext));
  commands.add("mnuSetReplace", onActive(&TransformDialogs::setSearchReplace));
  commands.add("mnuResequence", onActive(&TransformDialogs::renumber));
  commands.add("mnuOperate", onActive(&TransformDialogs::operate));
}

}  // namespace lathwick::gui
