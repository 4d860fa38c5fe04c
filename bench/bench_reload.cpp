// Reload of a colorized 1,000,000-line program into the rich text control, with its styles, and
// the plain-text load of the same program. Runs offscreen; the peak resident memory of the
// process is reported as the counter "peak_MB".
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <fstream>
#include <memory>
#include <string>

#include "document/gui/reload_document.h"
#include "generated_program.h"
#include "gui_bench_main.h"
#include "document/gui/rich_text_box.h"

namespace {

using namespace lathwick;

// The colorizer's attribute strings of a typical scheme (modes view: one per line).
const char* const kAttributes[] = {
    "\\f0\\fs20\\cf1\\b0\\i0\\strike0\\ul0 ", "\\f0\\fs20\\cf2\\b\\i0\\strike0\\ul0 ",
    "\\f0\\fs20\\cf3\\b0\\i0\\strike0\\ul0 ", "\\f1\\fs20\\cf4\\b0\\i\\strike0\\ul0 ",
};

// The same program twice: as plain text, and as the colorizer would have written it.
struct Files {
  bench::ScratchFolder folder{"lathwick-bench-reload"};
  std::string colorized = folder.file("TEMP3.TXT");
  std::string plain = folder.file("TEMP2.TXT");
  std::string undo = folder.file("UNDO.RTF");
  Files() {
    std::ofstream rtf(colorized, std::ios::binary);
    std::ofstream txt(plain, std::ios::binary);
    rtf << "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fmodern Courier New;}{\\f1\\fswiss Arial;}}\r\n"
           "{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;\\red0\\green128\\blue0;"
           "\\red0\\green0\\blue255;\\red128\\green128\\blue128;}\r\n"
           "\\deflang1033\\pard\\plain\\li200 \\f0\\fs20\\cf0\\b0\\i0\\strike0\\ul0\r\n";
    constexpr long kLines = bench::kMillionLines;
    bench::generateProgram(bench::ProgramStyle::ToolComments, kLines, [&](long i, const std::string& line) {
      const char* attribute = kAttributes[i % 10 == 9 ? 3 : (i % 4 == 0 ? 1 : (i % 3 == 0 ? 2 : 0))];
      rtf << (i ? "\\par\\li200 " : "\\li200 ") << attribute << line << "\r\n";
      txt << line << (i + 1 < kLines ? "\r\n" : "");
    });
    rtf << "\\par}\r\n";
  }
};

const Files& files() {
  static const Files f;
  return f;
}

std::unique_ptr<RichTextBox> shownBox() {
  auto box = std::make_unique<RichTextBox>();
  box->resize(800, 600);
  box->show();
  QApplication::processEvents();
  return box;
}

// The whole door: snapshot of the plain program to the undo file, then the colorized load.
void BM_ReloadColorized(benchmark::State& state) {
  const Files& f = files();
  auto box = shownBox();
  const DefaultTextStyle style;
  for (auto _ : state) {
    state.PauseTiming();
    box->loadFile(f.plain, FileKind::PlainText);
    box->lineScroll(500000);
    state.ResumeTiming();
    ReloadDocument(*box, f.colorized, FileKind::RichText, style, f.undo);
  }
  state.counters["lines"] = box->lineCount();
  state.counters["peak_MB"] = bench::peakResidentMegabytes();
}

// A colorized program edited by hand, then transformed again: the snapshot must write its
// formats without reading every style back from the control.
void BM_ReloadOverEditedColorized(benchmark::State& state) {
  const Files& f = files();
  auto box = shownBox();
  const DefaultTextStyle style;
  for (auto _ : state) {
    state.PauseTiming();
    box->loadFile(f.colorized, FileKind::RichText);
    box->setSelStart(box->lineIndex(400000));
    box->setSelText("(EDIT)");
    state.ResumeTiming();
    ReloadDocument(*box, f.colorized, FileKind::RichText, style, f.undo);
  }
  state.counters["peak_MB"] = bench::peakResidentMegabytes();
}

// A load alone, into an emptied control (no snapshot).
void loadIntoEmptyBox(benchmark::State& state, const std::string& path, FileKind kind) {
  auto box = shownBox();
  for (auto _ : state) {
    state.PauseTiming();
    box->setTextBytes("");
    state.ResumeTiming();
    box->loadFile(path, kind);
  }
  state.counters["lines"] = box->lineCount();
  state.counters["peak_MB"] = bench::peakResidentMegabytes();
}

void BM_LoadColorizedRichText(benchmark::State& state) {
  loadIntoEmptyBox(state, files().colorized, FileKind::RichText);
}

void BM_LoadPlainText(benchmark::State& state) { loadIntoEmptyBox(state, files().plain, FileKind::PlainText); }

// Typing near the end of the colorized program: each keystroke must stay in milliseconds.
void BM_KeystrokeNearEnd(benchmark::State& state) {
  const Files& f = files();
  auto box = shownBox();
  box->loadFile(f.colorized, FileKind::RichText);
  box->setFocus();
  box->setSelStart(box->lineIndex(box->lineCount() - 2) + 3);
  for (auto _ : state) {
    QKeyEvent key(QEvent::KeyPress, Qt::Key_7, Qt::NoModifier, "7");
    QApplication::sendEvent(box.get(), &key);
    QApplication::processEvents();
  }
  state.counters["lines"] = box->lineCount();
}

}  // namespace

BENCHMARK(BM_KeystrokeNearEnd)->Unit(benchmark::kMillisecond)->Iterations(200);
BENCHMARK(BM_LoadPlainText)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_LoadColorizedRichText)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ReloadColorized)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ReloadOverEditedColorized)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv) { return lathwick::bench::runWithApplication(argc, argv); }
