// Colorizes a generated 1,000,000-line CAM-style program (about 35 MB) file to file, in each
// view, with the first bundled scheme. Reports the input and output sizes and the peak resident
// memory, which must not grow with the file: the run streams line by line.
#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cstdio>
#include <filesystem>
#include <string>

#include "format/bundled_schemes.h"
#include "format/colorizer.h"
#include "platform/atomic_file.h"

namespace {

constexpr long kLines = 1000000;

std::string fmt(const char* pattern, double a, double b) {
  char buf[64];
  std::snprintf(buf, sizeof buf, pattern, a, b);
  return buf;
}

// A pocketing program: passes of linear moves with arcs at the corners, a comment and a tool
// or depth change now and then, rapid moves between passes, the odd block-skip line.
std::string writeProgram(const std::string& path) {
  lathwick::AtomicFileWriter w(path);
  w.writeLine("%");
  w.writeLine("O2001 (GENERATED POCKET PROGRAM)");
  long n = 0;
  std::string line;
  for (long i = 2; i < kLines; ++i) {
    const long k = i % 40;
    line = "N" + std::to_string(n += 10) + " ";
    const double x = (i % 997) * 0.125, y = (i % 613) * 0.25;
    if (k == 0) line += "(PASS " + std::to_string(i / 40) + " DEPTH -1.5 STEP 0.25)";
    else if (k == 1) line += "G00" + fmt(" X%.3f Y%.3f", x, y) + " Z5.";
    else if (k == 2) line += "G01 Z-1.5 F120.";
    else if (k == 3) line += "G41 D1" + fmt(" X%.3f Y%.3f", x, y) + " F450.";
    else if (k % 9 == 4) line += "G02" + fmt(" X%.3f Y%.3f", x, y) + fmt(" I%.3f J%.3f", 2.5, -1.25);
    else if (k % 9 == 5) line += "G03" + fmt(" X%.3f Y%.3f", x, y) + " R2.5";
    else if (k == 38) line += "G40 G00 Z5. M9";
    else if (k == 39 && i % 400 == 39) line = "/" + line + "M00 (CHECK)";
    else if (k == 39) line += "T" + std::to_string(i % 12 + 1) + " M06 S" + std::to_string(1200 + i % 4000) + " M03";
    else line += fmt("X%.4f Y%.4f", x, y) + (k % 2 == 0 ? " F450." : " Z-1.5");
    w.writeLine(line);
  }
  w.writeLine("%");
  w.commit();
  return path;
}

struct Files {
  std::filesystem::path folder;
  std::string input;
  std::string output;
  Files() {
    folder = std::filesystem::temp_directory_path() / "lathwick-bench-colorize";
    std::filesystem::create_directories(folder);
    input = writeProgram((folder / "TEMP2.TXT").string());
    output = (folder / "TEMP3.TXT").string();
  }
  ~Files() {
    std::error_code ec;
    std::filesystem::remove_all(folder, ec);
  }
};

Files& files() {
  static Files f;
  return f;
}

long peakRssKb() {
  rusage u{};
  getrusage(RUSAGE_SELF, &u);
  return u.ru_maxrss;
}

void colorize(benchmark::State& state, lathwick::ColorizeView view) {
  const lathwick::SchemeRecord scheme = lathwick::bundledSchemes()[0];
  Files& f = files();
  lathwick::ColorizeResult r;
  for (auto _ : state) {
    r = lathwick::colorizeFile(scheme, view, f.input, f.output, lathwick::silentMonitor());
    if (r.outcome != lathwick::ColorizeOutcome::Done) state.SkipWithError("colorize failed");
  }
  const auto in = std::filesystem::file_size(f.input), out = std::filesystem::file_size(f.output);
  state.SetBytesProcessed(static_cast<int64_t>(state.iterations() * in));
  state.counters["lines"] = static_cast<double>(r.linesWritten);
  state.counters["in_MB"] = static_cast<double>(in) / 1e6;
  state.counters["out_MB"] = static_cast<double>(out) / 1e6;
  state.counters["peak_RSS_MB"] = static_cast<double>(peakRssKb()) / 1024.0;
}

void BM_ColorizeModes(benchmark::State& s) { colorize(s, lathwick::ColorizeView::Modes); }
void BM_ColorizeCodes(benchmark::State& s) { colorize(s, lathwick::ColorizeView::Codes); }

BENCHMARK(BM_ColorizeModes)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ColorizeCodes)->Unit(benchmark::kMillisecond)->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
