// lathwick-cli run SCRIPT.vbs [ARGS...]: runs a macro with the console host.
#include <cstdio>

#include "commands.h"
#include "extend/vbscript/console_host.h"
#include "extend/vbscript/engine.h"
#include "options.h"
#include "platform/file_system.h"

namespace lathwick::cli {

int cmdRun(const Args& args) {
  if (args.empty()) throw UsageError("missing SCRIPT.vbs");
  const std::string& script = args.front();
  const auto text = readWholeFile(script);
  if (!text) {
    std::fprintf(stderr, "Cannot read %s\n", script.c_str());
    return kExitRefused;
  }
  vbs::Engine engine;
  vbs::installConsoleHost(engine, std::vector<std::string>(args.begin() + 1, args.end()));
  if (!engine.addCode(*text, script)) {
    const std::string msg = vbs::formatErrorRecord(*engine.lastError());
    std::fputs(msg.c_str(), stderr);
    return kExitRefused;
  }
  return kExitOk;
}

}  // namespace lathwick::cli
