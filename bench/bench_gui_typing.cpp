// Typing, moving the caret and scrolling in a 1,000,000-line CAM program coloured by codes,
// through the real frame window offscreen. Each key is sent to the document's text control as
// the keyboard sends it (press, then release), and what it leaves to do (the status panels, the
// format of the typed character, painting) is done before the clock stops: the time is what the
// user waits for. Each reports the peak resident memory of its timed steps as "peak_MB".
#include <benchmark/benchmark.h>

#include <QKeyEvent>
#include <algorithm>
#include <chrono>
#include <QString>

#include "gui_bench_main.h"
#include "gui_editor_fixture.h"

namespace {

using namespace lathwick;
using namespace lathwick::bench;

// The program opened and coloured by codes once, the caret in the middle of a line half-way.
gui::frmEditor* colouredDocument() {
  static gui::frmEditor* document = [] {
    gui::frmEditor* e = editor().open();
    editor().view(kCodes);
    RichTextBox& box = e->richTextBox();
    box.setFocus();
    box.setSelStart(box.lineIndex(box.lineCount() / 2) + 8);
    QApplication::processEvents();
    return e;
  }();
  return document;
}

void pressAndRelease(QWidget* target, int key, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
  QApplication::sendEvent(target, &press);
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
  QApplication::sendEvent(target, &release);
  QApplication::processEvents();
}

// The mean time of a key is the benchmark's time; the slowest one is the counter "max_ms".
void timeKey(benchmark::State& state, int key, const QString& text) {
  gui::frmEditor* e = colouredDocument();
  QWidget* target = &e->richTextBox();
  StepMemory memory;
  double slowest = 0;
  for (auto _ : state) {
    state.PauseTiming();
    memory.begin();
    const auto start = std::chrono::steady_clock::now();
    state.ResumeTiming();
    pressAndRelease(target, key, text);
    state.PauseTiming();
    slowest = std::max(slowest, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
    memory.end();
    state.ResumeTiming();
  }
  state.counters["max_ms"] = slowest;
  finish(state, e, memory);
}

void BM_TypeCharacter(benchmark::State& state) { timeKey(state, Qt::Key_7, QStringLiteral("7")); }
void BM_CaretDown(benchmark::State& state) { timeKey(state, Qt::Key_Down, {}); }
void BM_PageDown(benchmark::State& state) { timeKey(state, Qt::Key_PageDown, {}); }

}  // namespace

BENCHMARK(BM_TypeCharacter)->Unit(benchmark::kMillisecond)->Iterations(300);
BENCHMARK(BM_CaretDown)->Unit(benchmark::kMillisecond)->Iterations(300);
BENCHMARK(BM_PageDown)->Unit(benchmark::kMillisecond)->Iterations(300);

int main(int argc, char** argv) {
  return lathwick::bench::runWithApplication(argc, argv, [] { lathwick::bench::theEditor.reset(); });
}
