// Macro engine speed: a long loop of simple statements, string building, procedure calls.
#include <benchmark/benchmark.h>

#include <string>

#include "extend/vbscript/engine.h"

namespace {

void runOnce(benchmark::State& state, const std::string& code) {
  for (auto _ : state) {
    lathwick::vbs::Engine engine;
    if (!engine.addCode(code)) state.SkipWithError(engine.lastError()->message().c_str());
  }
}

// Ten million loop turns, each a counter update and an If; every 1000th appends to a string.
void BM_TenMillionLoop(benchmark::State& state) {
  runOnce(state,
          "n = 0 : s = \"\"\n"
          "For i = 1 To 10000000\n"
          "  n = n + 1\n"
          "  If i Mod 1000 = 0 Then s = s & \"x\"\n"
          "Next\n");
}
BENCHMARK(BM_TenMillionLoop)->Unit(benchmark::kMillisecond)->Iterations(1);

// The same loop inside a procedure (locals instead of globals).
void BM_TenMillionLoopInSub(benchmark::State& state) {
  runOnce(state,
          "Sub Work()\n"
          "  Dim n, s, i\n"
          "  For i = 1 To 10000000\n"
          "    n = n + 1\n"
          "    If i Mod 1000 = 0 Then s = s & \"x\"\n"
          "  Next\n"
          "End Sub\n"
          "Work\n");
}
BENCHMARK(BM_TenMillionLoopInSub)->Unit(benchmark::kMillisecond)->Iterations(1);

// String concatenation must stay linear: time per append should not grow with N.
void BM_Concat(benchmark::State& state) {
  runOnce(state, "s = \"\"\nFor i = 1 To " + std::to_string(state.range(0)) + "\n  s = s & \"abc\"\nNext\n");
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_Concat)->Arg(25000)->Arg(50000)->Arg(100000)->Arg(200000)->Unit(benchmark::kMillisecond)->Complexity();

// Building lines: `s = s & a & b` also appends in place.
void BM_ConcatLines(benchmark::State& state) {
  runOnce(state, "s = \"\"\nFor i = 1 To " + std::to_string(state.range(0)) + "\n  s = s & \"N\" & i & vbCrLf\nNext\n");
  state.SetComplexityN(state.range(0));
}
BENCHMARK(BM_ConcatLines)->Arg(25000)->Arg(50000)->Arg(100000)->Arg(200000)->Unit(benchmark::kMillisecond)->Complexity();

// Walking a 1 MB text character by character: Mid and Len read the string in place.
void BM_ScanMegabyte(benchmark::State& state) {
  runOnce(state,
          "s = String(1048576, \"G\")\n"
          "n = 0\n"
          "For i = 1 To Len(s)\n  If Mid(s, i, 1) = \"G\" Then n = n + 1\nNext\n");
}
BENCHMARK(BM_ScanMegabyte)->Unit(benchmark::kMillisecond)->Iterations(1);

// A million calls of a small Function.
void BM_MillionCalls(benchmark::State& state) {
  runOnce(state,
          "Function Add(a, b)\n  Add = a + b\nEnd Function\n"
          "For i = 1 To 1000000\n  t = Add(t, 1)\nNext\n");
}
BENCHMARK(BM_MillionCalls)->Unit(benchmark::kMillisecond)->Iterations(1);

}  // namespace

BENCHMARK_MAIN();
