// The motion model on generated programs of 1,000,000 lines: streamed with a callback that only
// counts (the verify side), and modelled whole into move records with the summary (the tool-path
// window and lathwick-cli bounds), from a file. Timed next to `wc -l` on the same file, and the
// peak resident memory is printed after the run. Run: build/bench/bench_toolpath
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <string>

#include "extend/toolpath/model_program.h"
#include "extend/toolpath/motion_model.h"
#include "generated_program.h"

namespace {

using namespace lathwick;
using namespace lathwick::toolpath;

const bench::ScratchFolder& folder() {
  static const bench::ScratchFolder dir("lathwick-bench-toolpath");
  return dir;
}

std::string programPath(bench::ProgramStyle style) {
  const std::string path = folder().file("program" + std::to_string(static_cast<int>(style)) + ".nc");
  static bool made[4] = {};
  if (!made[static_cast<int>(style)]) {
    const auto bytes = bench::writeProgram(path, style);
    std::printf("input: %s, %ju bytes, %ld lines\n", path.c_str(), bytes, bench::kMillionLines);
    std::fflush(stdout);
    made[static_cast<int>(style)] = true;
  }
  return path;
}

void streamed(benchmark::State& state, bench::ProgramStyle style) {
  const std::string path = programPath(style);
  std::ifstream in(path, std::ios::binary);
  const std::string bytes((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  std::uint64_t moves = 0, warnings = 0;
  for (auto _ : state) {
    moves = warnings = 0;
    MotionModel model({}, [&](const Move&) { ++moves; }, [&](const Warning&) { ++warnings; });
    model.feed(bytes);
    model.finish();
  }
  state.counters["moves"] = static_cast<double>(moves);
  state.counters["warnings"] = static_cast<double>(warnings);
}

void wholeFile(benchmark::State& state, bench::ProgramStyle style) {
  const std::string path = programPath(style);
  std::size_t moves = 0;
  for (auto _ : state) {
    const ModelledProgram p = modelProgramFile(path, {});
    moves = p.moves.size();
    benchmark::DoNotOptimize(p.summary.feedLength);
  }
  state.counters["moves"] = static_cast<double>(moves);
}

void wcLines(benchmark::State& state) {
  const std::string cmd = "wc -l '" + programPath(bench::ProgramStyle::CamPost) + "' > /dev/null";
  for (auto _ : state)
    if (std::system(cmd.c_str()) != 0) state.SkipWithError("wc failed");
}

BENCHMARK_CAPTURE(streamed, cam_post_in_memory, bench::ProgramStyle::CamPost)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(streamed, pocket_in_memory, bench::ProgramStyle::Pocket)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeFile, cam_post_file, bench::ProgramStyle::CamPost)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(wholeFile, milling_file, bench::ProgramStyle::Milling)->Unit(benchmark::kMillisecond);
BENCHMARK(wcLines)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  std::printf("peak resident memory: %.0f MB\n", bench::peakResidentMegabytes());
  return 0;
}
