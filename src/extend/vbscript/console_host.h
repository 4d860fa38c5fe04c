#pragma once
// A host for running macros without the editor: MsgBox writes its prompt to a stream,
// InputBox reads a line, and the object "Console" gives the script its arguments and plain
// output (`Arguments`, `Write`, `WriteLine`, `ReadLine`, also usable as bare names).
#include <cstdio>
#include <string>
#include <vector>

#include "extend/vbscript/engine.h"

namespace lathwick::vbs {

struct ConsoleStreams {
  std::FILE* out = stdout;
  std::FILE* in = stdin;
};

// Registers the console object and the MsgBox/InputBox callbacks on `engine`.
void installConsoleHost(Engine& engine, std::vector<std::string> arguments, ConsoleStreams streams = {});

// "NAME:LINE:COL: SOURCE NUMBER: MESSAGE" and, when known, the offending line on the next line.
std::string formatErrorRecord(const ErrorRecord& e);

}  // namespace lathwick::vbs
