// verify on two generated programs of 1,000,000 lines each: the pocketing program against the
// same program with its spaces removed and its blocks renumbered keeping references (the same
// motion, every line written differently), so the whole of both programs is compared. Also the
// renumber that keeps references next to the plain renumber on the same file, and awk's
// line-by-line comparison of the two files as a floor for reading them side by side.
// Run: build/bench/bench_verify
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <string>

#include "extend/verify/motion_compare.h"
#include "generated_program.h"
#include "transform/renumber.h"
#include "transform/spaces.h"

namespace {

using namespace lathwick;

const bench::ScratchFolder& folder() {
  static const bench::ScratchFolder dir("lathwick-bench-verify");
  return dir;
}
std::string programA() { return folder().file("a.nc"); }
std::string programB() { return folder().file("b.nc"); }

transform::RenumberRequest renumbering(bool keepReferences) {
  transform::RenumberRequest req;
  req.start = 5;
  req.increment = 5;
  req.updateReferences = keepReferences;
  return req;
}

void makePrograms() {
  static bool made = false;
  if (made) return;
  const auto bytes = bench::writeProgram(programA(), bench::ProgramStyle::Pocket);
  const std::string spaceless = folder().file("spaceless.nc");
  transform::runRemoveSpaces(programA(), spaceless, "(", silentMonitor());
  transform::runRenumber(spaceless, programB(), renumbering(true), silentMonitor());
  std::printf("A: %s, %ju bytes, %ld lines; B: the same motion renumbered without spaces\n", programA().c_str(),
              bytes, bench::kMillionLines);
  std::fflush(stdout);
  made = true;
}

void verifyLathwick(benchmark::State& state) {
  makePrograms();
  for (auto _ : state) {
    const auto r = verify::compareProgramFiles(programA(), programB(), verify::CompareOptions{});
    if (!r.same) state.SkipWithError("the programs were found different");
  }
  state.counters["peak_MB"] = bench::peakResidentMegabytes();
}

void verifyAwkFloor(benchmark::State& state) {
  makePrograms();
  // Reads both files side by side and compares their lines: no motion model, only the reading.
  const std::string cmd = "LC_ALL=C awk '{getline l < \"" + programA() + "\"; if (l != $0) d++} END{exit 0}' '" +
                          programB() + "'";
  for (auto _ : state)
    if (std::system(cmd.c_str()) != 0) state.SkipWithError("awk failed");
}

void renumberKeepingReferences(benchmark::State& state, bool keep) {
  makePrograms();
  const auto req = renumbering(keep);
  for (auto _ : state) {
    const auto r = transform::runRenumber(programA(), folder().file("out.nc"), req, silentMonitor());
    if (r.outcome != PassOutcome::Completed) state.SkipWithError(r.message.c_str());
  }
}

BENCHMARK(verifyLathwick)->Name("verify_1M_lines/lathwick")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
BENCHMARK(verifyAwkFloor)->Name("verify_1M_lines/awk_read_floor")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1);
BENCHMARK_CAPTURE(renumberKeepingReferences, plain, false)
    ->Name("renumber/plain")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);
BENCHMARK_CAPTURE(renumberKeepingReferences, keep, true)
    ->Name("renumber/keep_references")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3);

}  // namespace

BENCHMARK_MAIN();
