#include "workspace/script_host.h"

#include <algorithm>
#include <cctype>

#include "document/paths.h"
#include "platform/file_system.h"
#include "workspace/application_object.h"

namespace lathwick {

namespace {

std::string upper(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return static_cast<char>(std::toupper(c)); });
  return s;
}

std::string replaceAll(std::string s, const std::string& from, const std::string& to) {
  for (std::size_t at = s.find(from); at != std::string::npos; at = s.find(from, at + to.size()))
    s.replace(at, from.size(), to);
  return s;
}

}  // namespace

std::vector<MacroEntry> macroEntries(const std::vector<vbs::ProcedureInfo>& procedures) {
  std::vector<MacroEntry> out;
  for (const vbs::ProcedureInfo& p : procedures)
    if (upper(p.name).find("V_") != std::string::npos) out.push_back({replaceAll(p.name, "V_", "&"), p.name});
  return out;
}

std::string scriptErrorText(const vbs::ErrorRecord& error, const std::string& fileLabel) {
  const std::string end = "\r\n";
  return error.source + end + std::string(53, '-') + end + "File =  " + fileLabel + end +
         "Line = " + std::to_string(error.line) + end + "Column = " + std::to_string(error.column) + end +
         "Text =  " + error.lineText + end + "Discription =  " + error.message() + end;
}

std::string scriptFileName(const std::string& name) {
  // (NOT p) AND L on 32-bit integers, p the 1-based position of "VBS" (0 when absent).
  const std::size_t at = upper(name).find("VBS");
  const std::int32_t p = at == std::string::npos ? 0 : static_cast<std::int32_t>(at + 1);
  const auto length = static_cast<std::int32_t>(name.size());
  return ((~p) & length) != 0 ? name + ".vbs" : name;
}

ScriptHost::ScriptHost(Workspace& workspace, ScriptWindow& window, std::string scriptFolder)
    : workspace_(workspace), window_(window), scriptFolder_(std::move(scriptFolder)) {
  window_.host = this;
  engine_.setInterruptError(vbs::kObjectError + 1, kScriptInterrupted);
}

ScriptHost::~ScriptHost() {
  if (window_.host == this) window_.host = nullptr;
}

void ScriptHost::setUi(vbs::UiCallbacks ui) {
  ui_ = std::move(ui);
  engine_.setUi(ui_);
}

std::string ScriptHost::mainScriptLabel() const { return ShortenPath(scriptFolder_ + kMainScriptName, 25); }

void ScriptHost::addApplication() { addApplicationObject(engine_, workspace_, window_); }

void ScriptHost::loadMainScript() {
  const std::optional<std::string> text = readWholeFile(scriptFolder_ + kMainScriptName);
  addApplication();
  if (text) addScriptText(*text, mainScriptLabel());
}

void ScriptHost::resetCode() {
  if (depth_ > 0) {
    resetPending_ = true;
    return;
  }
  engine_.reset();
  engine_.setUi(ui_);
  loadMainScript();
}

void ScriptHost::loadScriptFile(const std::string& name) {
  const std::string fileName = scriptFileName(name);
  const std::string path = scriptFolder_ + fileName;
  if (!readWholeFile(path)) {
    workspace_.messageBox(scriptFolder_ + fileName + " does not exist", kScriptErrorCaption, Buttons::Ok, Icon::None);
    return;
  }
  addScriptFile(path, ShortenPath(path, 25));
}

bool ScriptHost::addScriptFile(const std::string& path, const std::string& fileLabel) {
  const std::optional<std::string> text = readWholeFile(path);
  if (!text) return false;
  return addScriptText(*text, fileLabel);
}

bool ScriptHost::addScriptText(const std::string& text, const std::string& fileLabel) {
  ++depth_;
  const bool ok = engine_.addCode(text, fileLabel);
  finishRun();
  return !showScriptError(fileLabel) && ok;
}

bool ScriptHost::defines(const std::string& name) const {
  const std::string wanted = upper(name);
  for (const vbs::ProcedureInfo& p : engine_.procedures())
    if (upper(p.name) == wanted) return true;
  return false;
}

bool ScriptHost::runMacro(const std::string& name) {
  std::vector<vbs::Variant> none;
  return runProcedure(name, none);
}

void ScriptHost::callHook(const std::string& name, std::vector<vbs::Variant> args) {
  if (defines(name)) runProcedure(name, args);
}

bool ScriptHost::runProcedure(const std::string& name, std::vector<vbs::Variant>& args) {
  ++depth_;
  const bool ok = engine_.run(name, args).has_value();
  finishRun();
  return !showScriptError(mainScriptLabel()) && ok;
}

// After the outermost run: code dropped by an error inside it goes now, and a Reset Code asked
// for inside it is done now.
void ScriptHost::finishRun() {
  if (--depth_ > 0) return;
  if (dropPending_ || resetPending_) {
    dropPending_ = false;
    engine_.reset();
    engine_.setUi(ui_);
  }
  if (resetPending_) {
    resetPending_ = false;
    loadMainScript();
  }
  if (afterRun_) afterRun_();
}

std::optional<vbs::ErrorRecord> ScriptHost::runUnattended(const std::string& text, const std::string& label,
                                                          const std::string& procedure) {
  ++depth_;
  bool ok = engine_.addCode(text, label);
  if (ok && !procedure.empty()) {
    std::vector<vbs::Variant> none;
    ok = engine_.run(procedure, none).has_value();
  }
  std::optional<vbs::ErrorRecord> error;
  if (!ok) {
    error = engine_.lastError();
    engine_.clearError();
  }
  finishRun();
  return error;
}

bool ScriptHost::showScriptError(const std::string& fileLabel) {
  const std::optional<vbs::ErrorRecord> error = engine_.lastError();
  if (!error || (error->description.empty() && error->number == 0)) return false;
  engine_.clearError();
  workspace_.messageBox(scriptErrorText(*error, fileLabel), kScriptErrorCaption, Buttons::Ok, Icon::None);
  if (depth_ > 0) {
    // An error of code a running macro loaded: the code goes when the macro has returned.
    dropPending_ = true;
    return true;
  }
  engine_.reset();
  engine_.setUi(ui_);
  return true;
}

}  // namespace lathwick
