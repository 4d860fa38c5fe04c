#pragma once
// The macro host of the program: one engine for the life of the frame (or of a headless run),
// the main script loaded with the program as the object "Application", more script files added
// on request, the procedures offered as macros, the hooks the program calls, and the one way
// errors are told: the "Script Error" box, after which all script code is dropped.
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "extend/vbscript/engine.h"
#include "workspace/script_window.h"
#include "workspace/workspace.h"

namespace lathwick {

inline constexpr const char* kScriptErrorCaption = "Script Error";
inline constexpr const char* kScriptInterrupted = "Script interrupted";
inline constexpr const char* kMainScriptName = "main.vbs";
inline constexpr const char* kKeyboardScriptName = "Keyboard.vbs";

// A procedure offered as a macro: its menu caption and the name it runs by.
struct MacroEntry {
  std::string caption;
  std::string tag;
};

// Every procedure whose upper-cased name holds "V_", in the engine's order; the caption is the
// name with each upper-case "V_" made "&" (the next letter becomes the access key).
std::vector<MacroEntry> macroEntries(const std::vector<vbs::ProcedureInfo>& procedures);

// The text of the "Script Error" box for an error of the code labelled `fileLabel`.
std::string scriptErrorText(const vbs::ErrorRecord& error, const std::string& fileLabel);

// ".vbs" is appended by a bitwise test that holds for every non-empty name, even one ending in
// ".vbs" already: scripts written against the program rely on the name they pass being used so.
std::string scriptFileName(const std::string& name);

class ScriptHost {
 public:
  // `scriptFolder` ends in a separator. The host registers "Application" over `workspace` and
  // `window`; both must outlive it.
  ScriptHost(Workspace& workspace, ScriptWindow& window, std::string scriptFolder);
  ~ScriptHost();
  ScriptHost(const ScriptHost&) = delete;
  ScriptHost& operator=(const ScriptHost&) = delete;

  vbs::Engine& engine() { return engine_; }
  const std::string& scriptFolder() const { return scriptFolder_; }
  std::string mainScriptLabel() const;

  // MsgBox, InputBox and the event poll of running macros (the editor's dialogs and Esc).
  void setUi(vbs::UiCallbacks ui);

  // Loads the main script (a missing file loads nothing and says nothing).
  void loadMainScript();
  // Drops all code and loads the main script again.
  void resetCode();
  // Adds a file of the script folder (the name gets its suffix as scriptFileName says); a
  // missing file is told in a "Script Error" box.
  void loadScriptFile(const std::string& name);
  // Reads `path` whole, adds it as code and shows any error with `fileLabel`. False on an error.
  bool addScriptFile(const std::string& path, const std::string& fileLabel);
  bool addScriptText(const std::string& text, const std::string& fileLabel);

  std::vector<MacroEntry> macros() const { return macroEntries(engine_.procedures()); }
  // Runs a procedure without arguments; an error is shown with the main script's label.
  bool runMacro(const std::string& name);
  // Runs a procedure the program calls on its own ("LoadDoc", "SendTo") when the scripts
  // define it; an error is shown with the main script's label.
  void callHook(const std::string& name, std::vector<vbs::Variant> args);
  bool defines(const std::string& name) const;

  // Adds `text` and runs `procedure` (when given) without the "Script Error" box: the error, if
  // any, is returned for the caller to report. For scripts that drive the program from outside.
  std::optional<vbs::ErrorRecord> runUnattended(const std::string& text, const std::string& label,
                                                const std::string& procedure);

  // Shows the pending error, if any, then drops all code. True when one was shown.
  bool showScriptError(const std::string& fileLabel);

  // While a macro runs; interrupt() stops it with "Script interrupted".
  bool running() const { return depth_ > 0; }
  void interrupt() { engine_.interrupt(); }
  // Called when the outermost run has ended: a window that held back its menu and status
  // updates while the script worked brings them up to date once.
  void setAfterRun(std::function<void()> afterRun) { afterRun_ = std::move(afterRun); }

  // Registers "Application" (loadMainScript does it; a batch run that adds its own script does
  // it itself).
  void addApplication();

 private:
  bool runProcedure(const std::string& name, std::vector<vbs::Variant>& args);
  void finishRun();

  Workspace& workspace_;
  ScriptWindow& window_;
  std::string scriptFolder_;
  vbs::Engine engine_;
  vbs::UiCallbacks ui_;
  std::function<void()> afterRun_;
  int depth_ = 0;             // runs under way (a macro may load code or call a hook)
  bool dropPending_ = false;  // an error inside a run: drop all code when it ends
  bool resetPending_ = false; // Reset Code inside a run: done when it ends
};

}  // namespace lathwick
