#pragma once
// What the "Application" object needs beyond the workspace: the parts of the program that only
// a window has (the operate dialog, keys, the toolbar, the scheme menus, the open dialog). The
// headless workspace answers them without a window: Operate still runs, the rest do nothing.
#include <string>

#include "transform/operate.h"

namespace lathwick {

class ScriptHost;

class ScriptWindow {
 public:
  virtual ~ScriptWindow() = default;
  // The operate dialog run unattended over the active document with these entries.
  virtual void operate(const transform::OperateEntries& entries) = 0;
  // Keys in the keystroke notation ("{ENTER}", "^c"), sent to the focused widget.
  virtual void keyPress(const std::string& keys) { (void)keys; }
  // Every toolbar button takes `visible`; "New", "Open" and "Help" are shown again.
  virtual void setToolButtonsVisible(bool visible) { (void)visible; }
  // Fills the active document's scheme menu afresh from the scheme data file.
  virtual void loadMenuArray() {}
  // The Open command: the open dialog, then the chosen file loaded.
  virtual void dlgOpen() {}
  // The host the Application object belongs to, for LoadScriptFile.
  ScriptHost* host = nullptr;
};

}  // namespace lathwick
