// The command table of the frame: every menu entry and toolbar button of the frame and of the
// document windows reaches its work here, under its menu name. A name left out is a feature
// this version does not have; its entries show disabled.
#include <QApplication>
#include <QClipboard>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QToolBar>

#include "document/gui/frm_editor.h"
#include "platform/gui/dialogs.h"
#include "shell/gui/mdi_form.h"
#include "transform/gui/transform_dialogs.h"

namespace lathwick::gui {

void MDIForm1::registerCommands() {
  auto withEditor = [this](auto action) {
    return [this, action](int) {
      if (frmEditor* editor = activeEditor()) action(*editor);
    };
  };
  commands_.add("mnuNew", [this](int) { newDocument(); });
  commands_.add("mnuOpen", [this](int) { openDialog(0); });
  commands_.add("mnuExit", [this](int) { close(); });
  commands_.add("mnuRecentFile", [this](int index) {
    if (index >= 1 && index < static_cast<int>(recentPaths_.size())) LoadDoc(recentPaths_[index]);
  });
  commands_.add("mnuToolbar", [this](int) { setToolbarVisible(!toolbar_->isVisible()); });
  commands_.add("mnuStatus", [this](int) { setStatusVisible(!statusBar()->isVisible()); });
  commands_.add("mnuAuto", [this](int) { setAutoFormat(!autoFormat_); });
  commands_.add("mnuLineNumbers", [this](int) { setLineNumbers(!lineNumbers_); });
  commands_.add("mnuToolbarText", [this](int) { setToolbarText(!toolbarText()); });
  commands_.add("mnuContents", [this](int) { showHelp(); });
  commands_.add("mnuAbout", [this](int) {
    dialogs().message(values_.VersionText, std::string("About ") + kAppTitle, Buttons::Ok, Icon::Information);
  });
  const auto readMe = [this](int) { LoadDoc(values_.AppFolder + "Readme.txt"); };
  commands_.add("mnuReadMe", readMe);
  commands_.add("mnuRead", readMe);
  commands_.add("mnuCascade", [this](int) { mdi_->cascadeSubWindows(); });
  commands_.add("mnuTileVert", [this](int) { tileVertically(); });
  commands_.add("mnuTilrHoriz", [this](int) { tileHorizontally(); });

  commands_.add("mnuClose", withEditor([](frmEditor& e) {
    if (auto* sub = qobject_cast<QMdiSubWindow*>(e.parentWidget())) sub->close();
  }));
  commands_.add("mnuSave", withEditor([](frmEditor& e) { e.Save(); }));
  commands_.add("mnuSaveAsTXT", withEditor([this](frmEditor& e) { saveAsPlain(e); }));
  commands_.add("mnuSaveRTF", withEditor([this](frmEditor& e) { saveAsRich(e); }));

  commands_.add("mnuModal", [this](int index) {
    if (frmEditor* editor = activeEditor()) editor->Colorize(index);
  });
  commands_.add("mnuScheme", [this](int index) {
    if (frmEditor* editor = activeEditor()) editor->applyScheme(index);
  });
  commands_.add("mnuFind", withEditor([this](frmEditor& e) { transforms_->findNext(e); }));
  commands_.add("mnuReplace", withEditor([this](frmEditor& e) { transforms_->replaceNext(e); }));
  commands_.add("mnuSetReplace", withEditor([this](frmEditor& e) { transforms_->setSearchReplace(e); }));
  commands_.add("mnuResequence", withEditor([this](frmEditor& e) { transforms_->renumber(e); }));
  commands_.add("mnuOperate", withEditor([this](frmEditor& e) { transforms_->operate(e); }));
  commands_.add("mnuAddSpaces", withEditor([](frmEditor& e) { e.AddSpaces(); }));
  commands_.add("mnuRemove", withEditor([](frmEditor& e) { e.RemoveSpaces(); }));
  commands_.add("mnuJunkFilter", withEditor([](frmEditor& e) { e.JunkFilter(); }));
  commands_.add("mnuUndo", withEditor([](frmEditor& e) { e.Undo(); }));
  commands_.add("mnuCut", withEditor([](frmEditor& e) { e.Cut(); }));
  commands_.add("mnuCopy", withEditor([](frmEditor& e) { e.Copy(); }));
  commands_.add("mnuPaste", withEditor([](frmEditor& e) { e.Paste(); }));
  commands_.add("Delete", withEditor([](frmEditor& e) { e.deleteKey(); }));
  commands_.add("mnuCutLine", withEditor([](frmEditor& e) { e.cutLine(); }));
  commands_.add("mnuCutToEnd", withEditor([](frmEditor& e) { e.cutToEnd(); }));
  commands_.add("mnuPasteLine", withEditor([](frmEditor& e) { e.pasteLine(); }));
  commands_.add("mnuAppend", withEditor([](frmEditor& e) { e.appendClipboard(); }));
  commands_.add("mnuCleaeClip", [](int) { QApplication::clipboard()->clear(); });
  commands_.add("mnuSelectAll", withEditor([](frmEditor& e) { e.selectAll(); }));
  commands_.add("mnuGetLast", withEditor([](frmEditor& e) { e.getLastSelection(); }));
  commands_.add("mnuUcase", withEditor([](frmEditor& e) { e.changeCase(0); }));
  commands_.add("mnuLcase", withEditor([](frmEditor& e) { e.changeCase(1); }));
  commands_.add("mnuTitlecase", withEditor([](frmEditor& e) { e.changeCase(2); }));
}

}  // namespace lathwick::gui
