// The recovery copy of a 1,000,000-line CAM program after an edit, as the editor makes it, for a
// plain program and for one kept as rich text. The time is until the copy is on the disk (taken,
// written and flushed); "longest_hold_ms" is the longest the event loop was held meanwhile (the
// longest gap between the ticks of a zero-interval timer), which is what typing would feel;
// "longest_hold_cpu_ms" is the same gap in the processor time of the user-interface thread, which
// leaves out the time other programs on a busy machine took the processor away. The
// first copy of a run also waits for the worker to make its buffer. Runs offscreen; the folder is
// under the system's temporary folder (TMPDIR), so the flush costs what that disk costs.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <time.h>

#include <algorithm>
#include <memory>
#include <string>

#include "gui_bench_main.h"
#include "gui_editor_fixture.h"
#include "shell/gui/recovery_controller.h"

namespace {

using namespace lathwick;

// The editor of the window benchmarks with the recovery controller and the program open in it.
class Editor {
 public:
  Editor() {
    // The quiet period never ends by itself here: each copy is asked for.
    recovery_ = new gui::RecoveryController(editor_.frame(), editor_.file("recovery") + "/", {1 << 30, 1 << 30});
    document_ = editor_.open();
    QApplication::processEvents();
  }

  void edit() {
    document_->setSelection(0, 0);
    document_->replaceSelection("N1 ");
  }
  // Kept as rich text from now on: the document coloured by modes and named .RTF.
  void makeRich() {
    editor_.view(bench::kModes);
    document_->record().fileName = editor_.file("CAM1M.RTF");
  }
  gui::RecoveryController& recovery() { return *recovery_; }
  gui::frmEditor& document() { return *document_; }
  const bench::CountingDialogs& dialogs() const { return editor_.dialogs; }

 private:
  bench::Editor editor_{"lathwick-bench-gui-recovery"};
  gui::RecoveryController* recovery_ = nullptr;  // owned by the frame
  gui::frmEditor* document_ = nullptr;
};

std::unique_ptr<Editor> theEditor;
Editor& editor() {
  if (!theEditor) theEditor = std::make_unique<Editor>();
  return *theEditor;
}

double threadCpuMs() {
  timespec t{};
  clock_gettime(CLOCK_THREAD_CPUTIME_ID, &t);
  return static_cast<double>(t.tv_sec) * 1e3 + static_cast<double>(t.tv_nsec) / 1e6;
}

struct Holds {
  double wall = 0, cpu = 0;
};

// One copy after one edit, the event loop running as it would, its longest holds measured.
Holds copyOnce() {
  QElapsedTimer clock;
  double lastWall = 0, lastCpu = threadCpuMs();
  Holds longest;
  QTimer ticker;
  ticker.setInterval(0);
  QObject::connect(&ticker, &QTimer::timeout, [&] {
    const double wall = static_cast<double>(clock.nsecsElapsed()) / 1e6, cpu = threadCpuMs();
    longest.wall = std::max(longest.wall, wall - lastWall);
    longest.cpu = std::max(longest.cpu, cpu - lastCpu);
    lastWall = wall;
    lastCpu = cpu;
  });
  clock.start();
  ticker.start();
  QTimer::singleShot(0, [] { editor().recovery().copyChangedDocuments(); });
  do QApplication::processEvents(QEventLoop::AllEvents, 5);
  while (!editor().recovery().idle());
  ticker.stop();
  return longest;
}

void timeCopies(benchmark::State& state) {
  Holds longest;
  for (auto _ : state) {
    state.PauseTiming();
    editor().recovery().flush();
    editor().edit();
    state.ResumeTiming();
    const Holds holds = copyOnce();
    longest.wall = std::max(longest.wall, holds.wall);
    longest.cpu = std::max(longest.cpu, holds.cpu);
  }
  if (editor().dialogs().count) state.SkipWithError(("asked: " + editor().dialogs().last).c_str());
  if (!editor().recovery().session().hasDocuments()) state.SkipWithError("no copy was written");
  state.counters["longest_hold_ms"] = longest.wall;
  state.counters["longest_hold_cpu_ms"] = longest.cpu;
  state.counters["lines"] = editor().document().LineCount();
  state.counters["text_MB"] = static_cast<double>(editor().document().textLength()) / (1 << 20);
  state.counters["peak_MB"] = bench::peakResidentMegabytes();
}

void BM_PlainCopy(benchmark::State& state) { timeCopies(state); }
void BM_RichCopy(benchmark::State& state) {
  editor().makeRich();
  timeCopies(state);
}

}  // namespace

BENCHMARK(BM_PlainCopy)->Unit(benchmark::kMillisecond)->Iterations(5);
BENCHMARK(BM_RichCopy)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv) {
  return lathwick::bench::runWithApplication(argc, argv, [] { theEditor.reset(); });
}
