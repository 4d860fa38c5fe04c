// lathwick-cli macro SCRIPT.vbs [--call PROC] IN OUT: a macro over one document without windows.
#include <cstdio>
#include <iostream>

#include "commands.h"
#include "extend/vbscript/console_host.h"
#include "options.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "format/scheme_data_file.h"
#include "transform_common.h"
#include "workspace/headless_workspace.h"
#include "workspace/script_host.h"

namespace lathwick::cli {

namespace {

// The headless answers to the window-only members: Operate runs on the document, the rest
// (keys, toolbar, menus, the open dialog) do nothing.
class HeadlessScriptWindow : public ScriptWindow {
 public:
  explicit HeadlessScriptWindow(HeadlessWorkspace& workspace) : workspace_(workspace) {}
  void operate(const transform::OperateEntries& entries) override {
    if (auto* document = static_cast<HeadlessDocument*>(workspace_.activeDocument())) document->operate(entries);
  }

 private:
  HeadlessWorkspace& workspace_;
};

std::string folderOf(const std::string& path) {
  const std::size_t slash = path.find_last_of('/');
  return slash == std::string::npos ? std::string("./") : path.substr(0, slash + 1);
}

int scriptFailed(vbs::Engine& engine) {
  std::fputs(vbs::formatErrorRecord(*engine.lastError()).c_str(), stderr);
  return kExitRefused;
}

}  // namespace

int cmdMacro(const Args& args) {
  const ParsedArgs p = ParsedArgs::parse(args, withSchemeOptions({{"--call", true, false}}), 3, "SCRIPT.vbs IN OUT");
  const std::string& script = p.positionals()[0];
  const std::optional<std::string> text = readWholeFile(script);
  if (!text) {
    std::fprintf(stderr, "Cannot read %s\n", script.c_str());
    return kExitRefused;
  }
  const long scheme = parseInteger("--scheme", p.valueOr("--scheme", "1"));
  if (scheme < 1) throw UsageError("option --scheme needs a record number from 1");
  HeadlessWorkspace workspace(HeadlessSettings{p.valueOr("--data", bundledDataFilePath()), static_cast<int>(scheme), ""},
                              std::cout, std::cin);
  HeadlessDocument* document = nullptr;
  try {
    document = &workspace.open(p.positionals()[1]);
  } catch (const AppError& e) {
    std::fprintf(stderr, "%s: %s\n", p.positionals()[1].c_str(), e.what());
    return kExitRefused;
  }
  HeadlessScriptWindow window(workspace);
  ScriptHost host(workspace, window, folderOf(script));
  vbs::Engine& engine = host.engine();
  host.addApplication();
  vbs::installConsoleHost(engine, {});
  if (!engine.addCode(*text, script)) return scriptFailed(engine);
  const std::optional<std::string> call = p.value("--call");
  const std::string procedure = call.value_or("Main");
  if (call || host.defines(procedure)) {
    std::vector<vbs::Variant> none;
    if (!engine.run(procedure, none)) return scriptFailed(engine);
  }
  std::cout.flush();
  return document->saveAs(p.positionals()[2]) ? kExitOk : kExitRefused;
}

}  // namespace lathwick::cli
