#include "document/gui/document_commands.h"

#include <QApplication>
#include <QClipboard>
#include <QMdiSubWindow>

#include "document/gui/editor_host.h"
#include "document/gui/frm_editor.h"
#include "workspace/command_dispatch.h"

namespace lathwick::gui {

namespace {

// A handler that runs `action` on the active window, and does nothing when there is none.
template <typename Action>
CommandDispatcher::Handler onActive(EditorHost& host, Action action) {
  return [&host, action](int index) {
    if (frmEditor* editor = host.activeEditor()) action(*editor, index);
  };
}

void registerFileCommands(CommandDispatcher& c, EditorHost& host) {
  c.add("mnuClose", onActive(host, [](frmEditor& e, int) {
          if (auto* sub = qobject_cast<QMdiSubWindow*>(e.parentWidget())) sub->close();
        }));
  c.add("mnuSave", onActive(host, [](frmEditor& e, int) { e.Save(); }));
  c.add("mnuModal", onActive(host, [](frmEditor& e, int index) { e.Colorize(index); }));
  c.add("mnuScheme", onActive(host, [](frmEditor& e, int index) { e.applyScheme(index); }));
  c.add("mnuAddSpaces", onActive(host, [](frmEditor& e, int) { e.AddSpaces(); }));
  c.add("mnuRemove", onActive(host, [](frmEditor& e, int) { e.RemoveSpaces(); }));
  c.add("mnuJunkFilter", onActive(host, [](frmEditor& e, int) { e.JunkFilter(); }));
}

void registerEditCommands(CommandDispatcher& c, EditorHost& host) {
  c.add("mnuUndo", onActive(host, [](frmEditor& e, int) { e.Undo(); }));
  c.add("mnuCut", onActive(host, [](frmEditor& e, int) { e.Cut(); }));
  c.add("mnuCopy", onActive(host, [](frmEditor& e, int) { e.Copy(); }));
  c.add("mnuPaste", onActive(host, [](frmEditor& e, int) { e.Paste(); }));
  c.add("Delete", onActive(host, [](frmEditor& e, int) { e.deleteKey(); }));
  c.add("mnuCutLine", onActive(host, [](frmEditor& e, int) { e.cutLine(); }));
  c.add("mnuCutToEnd", onActive(host, [](frmEditor& e, int) { e.cutToEnd(); }));
  c.add("mnuPasteLine", onActive(host, [](frmEditor& e, int) { e.pasteLine(); }));
  c.add("mnuAppend", onActive(host, [](frmEditor& e, int) { e.appendClipboard(); }));
  c.add("mnuCleaeClip", [](int) { QApplication::clipboard()->clear(); });
  c.add("mnuSelectAll", onActive(host, [](frmEditor& e, int) { e.selectAll(); }));
  c.add("mnuGetLast", onActive(host, [](frmEditor& e, int) { e.getLastSelection(); }));
  c.add("mnuUcase", onActive(host, [](frmEditor& e, int) { e.changeCase(0); }));
  c.add("mnuLcase", onActive(host, [](frmEditor& e, int) { e.changeCase(1); }));
  c.add("mnuTitlecase", onActive(host, [](frmEditor& e, int) { e.changeCase(2); }));
}

}  // namespace

void registerDocumentCommands(CommandDispatcher& commands, EditorHost& host) {
  registerFileCommands(commands, host);
  registerEditCommands(commands, host);
}

}  // namespace lathwick::gui
