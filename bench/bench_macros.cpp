// Macros over a 100,000-line program through the Application object, as the batch tool and the
// editor run them: a visit of every line through SelStart/LineText, a rewrite of every line
// through SelText, and the cost of loading the bundled main.vbs (what it adds to the editor's
// start).
#include <benchmark/benchmark.h>

#include <chrono>
#include <sstream>
#include <thread>

#include "generated_program.h"
#include "format/scheme_data_file.h"
#include "platform/file_system.h"
#include "workspace/headless_workspace.h"
#include "workspace/script_host.h"

namespace {

using namespace lathwick;

constexpr long kLines = 100000;

struct NoWindow : ScriptWindow {
  void operate(const transform::OperateEntries&) override {}
};

const char* const kVisit =
    "Sub Main()\n"
    "  Dim i, n, pos, t, total\n"
    "  n = LineCount : pos = 0\n"
    "  For i = 0 To n - 1\n"
    "    SelStart = pos\n"
    "    t = LineText\n"
    "    total = total + Len(t)\n"
    "    If i = 0 Then pos = InStr(Text, vbLf) Else pos = pos + Len(t) + 1\n"
    "  Next\n"
    "  If total = 0 Then Err.Raise 5\n"
    "End Sub\n";

const char* const kRewrite =
    "Sub Main()\n"
    "  Dim i, n, pos, length, t\n"
    "  n = LineCount : pos = 0\n"
    "  For i = 0 To n - 2\n"
    "    SelStart = pos\n"
    "    If i = 0 Then length = InStr(Text, vbCr) - 1 Else length = Len(LineText) - 1\n"
    "    SelLength = length\n"
    "    t = SelText\n"
    "    SelText = t & \" (OK)\"\n"
    "    pos = pos + length + 7\n"
    "  Next\n"
    "End Sub\n";

void runMacro(benchmark::State& state, const char* code) {
  bench::ScratchFolder folder("lathwick_bench_macros");
  const std::string program = folder.file("p.nc");
  bench::writeProgram(program, bench::ProgramStyle::Milling, kLines);
  for (auto _ : state) {
    state.PauseTiming();
    std::ostringstream out;
    std::istringstream in;
    HeadlessWorkspace workspace(HeadlessSettings{bundledDataFilePath(), 1, folder.file("work")}, out, in);
    workspace.open(program);
    NoWindow window;
    ScriptHost host(workspace, window, folder.file("Script/"));
    host.addApplication();
    state.ResumeTiming();
    if (const auto error = host.runUnattended(code, "bench", "Main")) state.SkipWithError(error->message().c_str());
  }
}

void BM_VisitEveryLine(benchmark::State& state) { runMacro(state, kVisit); }
BENCHMARK(BM_VisitEveryLine)->Unit(benchmark::kMillisecond)->Iterations(1);

void BM_RewriteEveryLine(benchmark::State& state) { runMacro(state, kRewrite); }
BENCHMARK(BM_RewriteEveryLine)->Unit(benchmark::kMillisecond)->Iterations(1);

// From Esc (an interrupt from another thread) to the macro's end, for a loop that does nothing
// and for one that doubles a string: both must stop within 100 ms.
void runInterrupted(benchmark::State& state, const char* code) {
  std::ostringstream out;
  std::istringstream in;
  HeadlessWorkspace workspace(HeadlessSettings{bundledDataFilePath(), 1, ""}, out, in);
  NoWindow window;
  for (auto _ : state) {
    ScriptHost host(workspace, window, "");
    host.addApplication();
    std::chrono::steady_clock::time_point pressed;
    std::thread esc([&] {
      std::this_thread::sleep_for(std::chrono::milliseconds(150));
      pressed = std::chrono::steady_clock::now();
      host.interrupt();
    });
    const auto error = host.runUnattended(code, "bench", "Main");
    const auto stopped = std::chrono::steady_clock::now();
    esc.join();
    if (!error || error->description != "Script interrupted") state.SkipWithError("the macro was not interrupted");
    state.SetIterationTime(std::chrono::duration<double>(stopped - pressed).count());
  }
}

void BM_EscStopsAnEmptyLoop(benchmark::State& state) { runInterrupted(state, "Sub Main()\n  Do\n  Loop\nEnd Sub\n"); }
BENCHMARK(BM_EscStopsAnEmptyLoop)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

void BM_EscStopsStringDoubling(benchmark::State& state) {
  runInterrupted(state, "Sub Main()\n  s = \"x\"\n  Do\n    s = s & s\n    If Len(s) > 100000000 Then s = \"x\"\n  Loop\nEnd Sub\n");
}
BENCHMARK(BM_EscStopsStringDoubling)->UseManualTime()->Unit(benchmark::kMillisecond)->Iterations(5);

// The bundled main.vbs read, compiled and run, with "Application" added.
void BM_LoadBundledMainScript(benchmark::State& state) {
  std::ostringstream out;
  std::istringstream in;
  HeadlessWorkspace workspace(HeadlessSettings{bundledDataFilePath(), 1, ""}, out, in);
  NoWindow window;
  const std::string data = bundledDataFilePath();
  std::string folder = data.substr(0, data.find_last_of('/') + 1) + "Script/";
  // The benchmarks sit one folder below the data folder of the build.
  if (!readWholeFile(folder + kMainScriptName)) folder = data.substr(0, data.find_last_of('/') + 1) + "../Script/";
  if (!readWholeFile(folder + kMainScriptName)) state.SkipWithError("no bundled main.vbs");
  for (auto _ : state) {
    ScriptHost host(workspace, window, folder);
    host.loadMainScript();
    if (host.macros().empty()) state.SkipWithError("main.vbs gave no macros");
  }
}
BENCHMARK(BM_LoadBundledMainScript)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
