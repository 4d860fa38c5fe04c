#include "document/gui/menu_keys.h"

#include <Qsci/qscicommand.h>
#include <Qsci/qscicommandset.h>
#include <Qsci/qsciscintilla.h>

#include <QKeySequence>

#include "workspace/menu_tables.h"

namespace lathwick::gui {

void leaveMenuKeysToTheMenu(QsciScintilla& editor) {
  QsciCommandSet* keys = editor.standardCommands();
  for (const MenuEntry& entry : documentMenuTable()) {
    if (entry.shortcut[0] == '\0') continue;
    const int key = QKeySequence(QString::fromLatin1(entry.shortcut))[0].toCombined();
    for (QsciCommand* command : keys->commands()) {
      if (command->key() == key) command->setKey(0);
      if (command->alternateKey() == key) command->setAlternateKey(0);
    }
  }
}

}  // namespace lathwick::gui
