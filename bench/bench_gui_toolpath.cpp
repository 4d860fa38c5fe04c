// The tool-path view on a generated program of 1,000,000 lines (950,000 moves, arcs cut into
// chords), at 1000 x 700 pixels on the offscreen platform: the time to model and prepare the
// path; the time of one frame while the user zooms about the mouse, pans or turns (the change,
// then the widget painted as the screen would get it: QWidget::grab runs its paint event); and
// the time of the whole drawing once the view has settled. Run: build/bench/bench_gui_toolpath
#include <benchmark/benchmark.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>

#include "extend/gui/toolpath_view.h"
#include "extend/toolpath/path_drawing.h"
#include "generated_program.h"
#include "gui_bench_main.h"

namespace {

using namespace lathwick;
using namespace lathwick::toolpath;

const std::string& programText() {
  static const std::string text = [] {
    std::string t;
    bench::generateProgram(bench::ProgramStyle::Pocket, bench::kMillionLines, [&](long, const std::string& line) {
      t += line;
      t += "\r\n";
    });
    return t;
  }();
  return text;
}

struct Prepared {
  std::unique_ptr<ModelledProgram> program;
  std::shared_ptr<const PathLines> path;
};

const Prepared& prepared() {
  static const Prepared p = [] {
    Prepared r;
    r.program = std::make_unique<ModelledProgram>(modelProgramText(programText(), {}));
    r.path = std::make_shared<PathLines>(buildPathLines(*r.program));
    std::printf("path: %zu moves, %zu points\n", r.program->moves.size(), r.path->points());
    std::fflush(stdout);
    return r;
  }();
  return p;
}

void modelAndPrepare(benchmark::State& state) {
  for (auto _ : state) {
    const ModelledProgram program = modelProgramText(programText(), {});
    const PathLines path = buildPathLines(program);
    benchmark::DoNotOptimize(path.xyz.data());
  }
}

enum class Measure { Frame, Settled };

// One view change per iteration, then what it costs: a frame as painted, or the whole drawing.
template <class Change>
void after(benchmark::State& state, Measure measure, Change change) {
  gui::ToolpathView view;
  view.resize(1000, 700);
  view.setViewKind(ViewKind::Isometric);
  view.setPath(prepared().path, prepared().program->summary.allExtents);
  view.redraw();
  int i = 0;
  for (auto _ : state) {
    change(view, i++);
    if (measure == Measure::Frame)
      benchmark::DoNotOptimize(view.grab());
    else
      view.redraw();
  }
}

void zoom(gui::ToolpathView& v, int i) { v.zoomAt(QPointF(400, 300), i % 2 ? 1 / 1.25 : 1.25); }
void pan(gui::ToolpathView& v, int i) { v.panBy(QPointF(i % 2 ? -15 : 15, 10)); }
void turn(gui::ToolpathView& v, int i) { v.turnBy(i % 2 ? -0.02f : 0.02f, 0.01f); }

void frameZoomAboutMouse(benchmark::State& s) { after(s, Measure::Frame, zoom); }
void framePan(benchmark::State& s) { after(s, Measure::Frame, pan); }
void frameTurn(benchmark::State& s) { after(s, Measure::Frame, turn); }
void settledZoom(benchmark::State& s) { after(s, Measure::Settled, zoom); }
void settledPan(benchmark::State& s) { after(s, Measure::Settled, pan); }
void settledTurn(benchmark::State& s) { after(s, Measure::Settled, turn); }

BENCHMARK(modelAndPrepare)->Unit(benchmark::kMillisecond);
BENCHMARK(frameZoomAboutMouse)->Unit(benchmark::kMillisecond);
BENCHMARK(framePan)->Unit(benchmark::kMillisecond);
BENCHMARK(frameTurn)->Unit(benchmark::kMillisecond);
BENCHMARK(settledZoom)->Unit(benchmark::kMillisecond);
BENCHMARK(settledPan)->Unit(benchmark::kMillisecond);
BENCHMARK(settledTurn)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  const int status = bench::runWithApplication(argc, argv);
  std::printf("peak resident memory: %.0f MB\n", bench::peakResidentMegabytes());
  return status;
}
