// The editor's whole-document steps on a 1,000,000-line CAM program, through the real frame
// window offscreen: LoadDoc, View Modes, View Codes and the Undo that takes a colour view back.
// Each reports the peak resident memory of its timed step as the counter "peak_MB".
#include <benchmark/benchmark.h>

#include <initializer_list>
#include <string>

#include "gui_bench_main.h"
#include "gui_editor_fixture.h"

namespace {

using namespace lathwick;
using namespace lathwick::bench;

// File > Open as far as the frame goes: the program copied to the work file and shown.
void BM_LoadDoc(benchmark::State& state) {
  gui::frmEditor* e = nullptr;
  StepMemory memory;
  for (auto _ : state) {
    state.PauseTiming();
    editor().closeAll();
    memory.begin();
    state.ResumeTiming();
    e = editor().open();
    QApplication::processEvents();
    memory.end();
  }
  finish(state, e, memory);
}

// One view timed on the program just opened, after the views given (untimed); a view that left
// the program's colours as they were counts as failed.
void timeView(benchmark::State& state, std::initializer_list<int> viewsBefore, int view, const char* failure) {
  gui::frmEditor* e = nullptr;
  std::string before;
  StepMemory memory;
  for (auto _ : state) {
    state.PauseTiming();
    editor().closeAll();
    e = editor().open();
    for (int v : viewsBefore) editor().view(v);
    before = lineStyles(e);
    memory.begin();
    state.ResumeTiming();
    editor().view(view);
    memory.end();
  }
  if (e && lineStyles(e) == before) state.SkipWithError(failure);
  finish(state, e, memory);
}

// View Modes on the plain program just opened.
void BM_ViewModes(benchmark::State& state) { timeView(state, {}, kModes, "the program was not coloured by modes"); }

// View Codes on a program coloured by modes: the undo snapshot is then rich text.
void BM_ViewCodes(benchmark::State& state) {
  timeView(state, {kModes}, kCodes, "the program was not coloured by codes");
}

// Edit > Undo after View Codes: the document coloured by modes comes back from the undo file.
void BM_UndoCodes(benchmark::State& state) {
  gui::frmEditor* e = nullptr;
  std::string modes;
  StepMemory memory;
  for (auto _ : state) {
    state.PauseTiming();
    editor().closeAll();
    e = editor().open();
    editor().view(kModes);
    modes = lineStyles(e);
    editor().view(kCodes);
    memory.begin();
    state.ResumeTiming();
    editor().undo();
    memory.end();
  }
  if (e && lineStyles(e) != modes) state.SkipWithError("Undo did not bring the colours by modes back");
  finish(state, e, memory);
}

}  // namespace

BENCHMARK(BM_LoadDoc)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ViewModes)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ViewCodes)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_UndoCodes)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv) {
  return lathwick::bench::runWithApplication(argc, argv, [] { lathwick::bench::theEditor.reset(); });
}
