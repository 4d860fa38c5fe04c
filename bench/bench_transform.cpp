// The text transformations file to file on a generated program of 1,000,000 lines (~35 MB),
// each timed next to an awk one-liner doing the same kind of work on the same file, so the
// figures can be compared within one run on this machine. Run: build/bench/bench_transform
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "format/bundled_schemes.h"
#include "format/pass_frame.h"
#include "format/rich_text_builder.h"
#include "generated_program.h"
#include "transform/junk_filter.h"
#include "transform/operate.h"
#include "transform/renumber.h"
#include "transform/search_pass.h"
#include "transform/spaces.h"

namespace {

using namespace lathwick;
using namespace lathwick::transform;

const bench::ScratchFolder& folder() {
  static const bench::ScratchFolder dir("lathwick-bench-transform");
  return dir;
}
std::string inputPath() { return folder().file("program.nc"); }
std::string outputPath() { return folder().file("out.txt"); }

// The milling program, written once for all the passes of the run.
void makeProgram() {
  static bool made = false;
  if (made) return;
  const auto bytes = bench::writeProgram(inputPath(), bench::ProgramStyle::Milling);
  std::printf("input: %s, %ju bytes, %ld lines\n", inputPath().c_str(), bytes, bench::kMillionLines);
  std::fflush(stdout);
  made = true;
}

PassFrame frame() {
  SchemeRecord scheme = bundledSchemes().front();
  buildSchemeFragments(scheme);
  const std::string comment = "(";
  return makePassFrame(scheme, &comment);
}

// Removes the previous result outside the timing, so no run pays for deleting the last one.
void freshOutput(benchmark::State& state) {
  state.PauseTiming();
  std::filesystem::remove(outputPath());
  state.ResumeTiming();
}

void expectDone(benchmark::State& state, const PassResult& r) {
  if (r.outcome != PassOutcome::Completed) state.SkipWithError(r.message.c_str());
}

void awk(benchmark::State& state, const std::string& program) {
  makeProgram();
  const std::string cmd = "LC_ALL=C awk '" + program + "' '" + inputPath() + "' > '" + outputPath() + "'";
  for (auto _ : state) {
    freshOutput(state);
    if (std::system(cmd.c_str()) != 0) state.SkipWithError("awk failed");
  }
}

// The pass once per iteration on the same input, each time into a fresh output.
template <class Pass>
void timePass(benchmark::State& state, Pass pass) {
  makeProgram();
  for (auto _ : state) {
    freshOutput(state);
    expectDone(state, pass());
  }
}

// ---- renumber: every block gets N from 100 by 10 ----
void renumberLathwick(benchmark::State& state) {
  RenumberRequest req;
  req.start = 100;
  req.increment = 10;
  req.method = RenumberMethod::ExistingNumbers;
  timePass(state, [&] { return runRenumber(inputPath(), outputPath(), req, silentMonitor()); });
}
void renumberAwk(benchmark::State& state) {
  // (match and substr: mawk's sub() with a computed replacement is pathologically slow)
  awk(state, R"(BEGIN{n=100} {sub(/\r$/,""); if (match($0, /^N[-+.,\/0-9]*/)) { $0 = "N" n substr($0, RLENGTH+1); n+=10 } printf "%s\r\n", $0})");
}

// ---- operate: X, Y and Z times 2, "##0.0###", marked ----
void operateLathwick(benchmark::State& state) {
  const PassFrame f = frame();
  OperateRequest req;
  req.addresses = "XYZ";
  req.op = '*';
  req.operand = 2;
  req.format = "##0.0###";
  req.displayLineCount = 0;
  timePass(state, [&] { return runOperate(inputPath(), outputPath(), req, f, silentMonitor()); });
}
void operateAwk(benchmark::State& state) {
  awk(state, R"(BEGIN{print "{\\rtf1 header"} {sub(/\r$/,""); for (i=1;i<=NF;i++) { c=substr($i,1,1); if (c=="X"||c=="Y"||c=="Z") $i=c "\\f0\\cf10 " sprintf("%.4f", substr($i,2)*2) "\\plain\\f0\\cf0 " } printf "\\par\\li0 %s\r\n", $0} END{print "\\par}"})");
}

// ---- replace all: every "X" becomes "U", marked (one per line) ----
void replaceLathwick(benchmark::State& state) {
  const PassFrame f = frame();
  SearchRequest req;
  req.findText = "X";
  req.replaceText = "U";
  req.displayLineCount = 0;
  timePass(state, [&] { return runReplaceAll(inputPath(), outputPath(), req, f, silentMonitor()); });
}
void replaceAwk(benchmark::State& state) {
  awk(state, R"(BEGIN{print "{\\rtf1 header"} {sub(/\r$/,""); gsub(/[\\{}]/, "\\\\&"); gsub(/X/, "\\f0\\cf10 U\\plain\\f0\\cf0 "); printf "\\par\\li0 %s\r\n", $0} END{print "\\par}"})");
}

// ---- add spaces and remove spaces ----
void addSpacesLathwick(benchmark::State& state) {
  timePass(state, [&] { return runAddSpaces(inputPath(), outputPath(), "(", silentMonitor()); });
}
void addSpacesAwk(benchmark::State& state) {
  awk(state, R"({sub(/\r$/,""); s=$0; o=""; while (match(s, /[0-9.][A-Za-z]/)) { o=o substr(s,1,RSTART) " "; s=substr(s,RSTART+1) } printf "%s%s\r\n", o, s})");
}
void removeSpacesLathwick(benchmark::State& state) {
  timePass(state, [&] { return runRemoveSpaces(inputPath(), outputPath(), "(", silentMonitor()); });
}
void removeSpacesAwk(benchmark::State& state) {
  awk(state, R"({sub(/\r$/,""); p=index($0,"("); if (p) { c=substr($0,1,p); r=substr($0,p+1) } else { c=$0; r="" } gsub(/ /,"",c); printf "%s%s\r\n", c, r})");
}

// ---- junk filter ----
void junkLathwick(benchmark::State& state) {
  timePass(state, [&] { return runJunkFilter(inputPath(), outputPath(), silentMonitor()); });
}
void junkAwk(benchmark::State& state) {
  awk(state, R"({gsub(/[^ -~]/,""); printf "%s\r\n", $0})");
}

#define PAIR(name, ours, theirs)                                                                         \
  BENCHMARK(ours)->Name(name "/lathwick")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(3); \
  BENCHMARK(theirs)->Name(name "/awk")->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(1)

PAIR("renumber", renumberLathwick, renumberAwk);
PAIR("operate_xyz_times_2", operateLathwick, operateAwk);
PAIR("replace_all", replaceLathwick, replaceAwk);
PAIR("add_spaces", addSpacesLathwick, addSpacesAwk);
PAIR("remove_spaces", removeSpacesLathwick, removeSpacesAwk);
PAIR("junk_filter", junkLathwick, junkAwk);

}  // namespace

BENCHMARK_MAIN();
