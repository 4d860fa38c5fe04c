#pragma once
// Runs a test script through the engine with the console host, capturing what it prints.
#include <cstdio>
#include <optional>
#include <string>

#include "extend/vbscript/console_host.h"
#include "extend/vbscript/engine.h"

namespace lathwick::vbs::test {

struct ScriptRun {
  std::string output;
  std::optional<ErrorRecord> error;
};

inline ScriptRun runScript(const std::string& text, const std::string& input = {}, const std::string& name = "test.vbs") {
  char* buf = nullptr;
  size_t len = 0;
  std::FILE* out = open_memstream(&buf, &len);
  std::string inCopy = input.empty() ? std::string(1, '\0') : input;
  std::FILE* in = fmemopen(inCopy.data(), input.empty() ? 0 : inCopy.size(), "r");
  ScriptRun r;
  {
    Engine engine;
    installConsoleHost(engine, {}, ConsoleStreams{out, in});
    if (!engine.addCode(text, name)) r.error = engine.lastError();
  }
  std::fclose(out);
  if (in) std::fclose(in);
  r.output.assign(buf, len);
  std::free(buf);
  return r;
}

}  // namespace lathwick::vbs::test
