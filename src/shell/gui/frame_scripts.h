#pragma once
// The frame's script host in the editor: the engine with "Application" over the frame, the
// Macro menu's commands, the procedures pop-up, MsgBox and InputBox as dialogs, and Esc or a
// click on the message panel stopping a running macro.
#include <QObject>
#include <map>
#include <memory>
#include <string>

#include "workspace/command_dispatch.h"
#include "workspace/script_host.h"

class QKeyEvent;
class QMenu;

namespace lathwick::gui {

class MDIForm1;

class FrameScripts : public QObject, public ScriptWindow {
  Q_OBJECT
 public:
  FrameScripts(MDIForm1& frame, const std::string& scriptFolder);
  ~FrameScripts() override;

  ScriptHost& host() { return *host_; }
  // The Macro menu: Execute File (0), Execute (1), and Reset Code.
  void executeFile();
  void execute();
  void resetCode() { host_->resetCode(); }
  // The pop-up of the macro procedures, filled by execute().
  QMenu* proceduresMenu() const { return procedures_; }

  // The key recorder: while on, special keys pressed in a document are appended to the
  // keyboard script, preceded by the text typed since the last one.
  void setRecording(bool on) { recording_ = on; }
  bool recording() const { return recording_; }
  // A key pressed in `receiver` (the frame sees every key first).
  void noteKey(QObject* receiver, const QKeyEvent& event);

  // Keys of the keystroke notation, posted to the focused widget.
  static void postKeys(const std::string& keys);

  void operate(const transform::OperateEntries& entries) override;
  void keyPress(const std::string& keys) override { postKeys(keys); }
  void setToolButtonsVisible(bool visible) override;
  void loadMenuArray() override;
  void dlgOpen() override;

 private:
  void fillProcedures();

  MDIForm1& frame_;
  std::unique_ptr<ScriptHost> host_;
  QMenu* procedures_;
  bool recording_ = false;
  std::map<const QObject*, std::string> pendingText_;  // per document window
};

// Registers the Macro menu's commands on the frame's dispatcher.
void registerMacroCommands(CommandDispatcher& commands, FrameScripts& scripts);

}  // namespace lathwick::gui
