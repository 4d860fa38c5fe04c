// Colorizes a generated 1,000,000-line CAM-style program (about 35 MB) file to file, in each
// view, with the first bundled scheme. Reports the input and output sizes and the peak resident
// memory, which must not grow with the file: the run streams line by line.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>

#include "format/bundled_schemes.h"
#include "format/colorizer.h"
#include "generated_program.h"

namespace {

using lathwick::bench::ProgramStyle;

struct Files {
  lathwick::bench::ScratchFolder folder{"lathwick-bench-colorize"};
  // A million lines and the closing %, as this benchmark has always read them.
  std::string input = folder.file("TEMP2.TXT");
  std::string output = folder.file("TEMP3.TXT");
  Files() { lathwick::bench::writeProgram(input, ProgramStyle::Pocket, lathwick::bench::kMillionLines + 1); }
};

Files& files() {
  static Files f;
  return f;
}

void colorize(benchmark::State& state, lathwick::ColorizeView view) {
  const lathwick::SchemeRecord scheme = lathwick::bundledSchemes()[0];
  Files& f = files();
  lathwick::PassResult r;
  for (auto _ : state) {
    r = lathwick::colorizeFile(scheme, view, f.input, f.output, lathwick::silentMonitor());
    if (r.outcome != lathwick::PassOutcome::Completed) state.SkipWithError("colorize failed");
  }
  const auto in = std::filesystem::file_size(f.input), out = std::filesystem::file_size(f.output);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * in));
  state.counters["lines"] = static_cast<double>(r.count);
  state.counters["in_MB"] = static_cast<double>(in) / 1e6;
  state.counters["out_MB"] = static_cast<double>(out) / 1e6;
  state.counters["peak_RSS_MB"] = lathwick::bench::peakResidentMegabytes();
}

void BM_ColorizeModes(benchmark::State& s) { colorize(s, lathwick::ColorizeView::Modes); }
void BM_ColorizeCodes(benchmark::State& s) { colorize(s, lathwick::ColorizeView::Codes); }

BENCHMARK(BM_ColorizeModes)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ColorizeCodes)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
