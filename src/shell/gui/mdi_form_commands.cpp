// The command table: every menu entry and toolbar button reaches its work under its menu name.
// A name left out is a feature this version does not have; its entries show disabled.
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QStatusBar>
#include <QToolBar>

#include "document/gui/document_commands.h"
#include "document/gui/frm_editor.h"
#include "extend/gui/extend_commands.h"
#include "extend/gui/verify_commands.h"
#include "extend/gui/graphics_commands.h"
#include "format/colorizer.h"
#include "platform/gui/command_guard.h"
#include "platform/gui/dialogs.h"
#include "shell/gui/mdi_form.h"
#include "shell/gui/print_scheme_commands.h"
#include "transform/gui/transform_commands.h"
#include "transform/gui/transform_dialogs.h"

namespace lathwick::gui {

// Each part of the program adds its own commands; a new part is one more line here.
void MDIForm1::registerCommands() {
  // Whatever a command lets escape is reported and the program goes on; the status bar is put
  // back first, as a finished command would leave it.
  setEscapedErrorCleanup([this] { setStatusText(kReadyStatus); });
  commands_.setBoundary(reportEscapedError);
  registerFrameCommands();
  registerDocumentCommands(commands_, *this);
  registerTransformCommands(commands_, *transforms_, [this]() -> TransformTarget* { return activeEditor(); });
  registerExtendCommands(*this);
  registerPrintAndSchemeCommands(*this);
  registerVerifyCommands(commands_, *this, this);
  registerGraphicsCommands(commands_, *this, settings_);
}

// The frame's own commands: files, view settings, help and the Window menu.
void MDIForm1::registerFrameCommands() {
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

  commands_.add("mnuSaveAsTXT", withEditor([this](frmEditor& e) { saveAsPlain(e); }));
  commands_.add("mnuSaveRTF", withEditor([this](frmEditor& e) { saveAsRich(e); }));
}

}  // namespace lathwick::gui
