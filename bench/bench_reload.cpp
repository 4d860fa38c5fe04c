// Reload of a colorized 1,000,000-line program into the rich text control, with its styles, and
// the plain-text load of the same program. Runs offscreen; the peak resident memory of the
// process is reported as the counter "peak_MB".
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QKeyEvent>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <string>

#include "document/gui/reload_document.h"
#include "platform/gui/rich_text_box.h"

namespace {

using namespace lathwick;

constexpr int kLines = 1000000;

// The colorizer's attribute strings of a typical scheme (modes view: one per line).
const char* const kAttributes[] = {
    "\\f0\\fs20\\cf1\\b0\\i0\\strike0\\ul0 ", "\\f0\\fs20\\cf2\\b\\i0\\strike0\\ul0 ",
    "\\f0\\fs20\\cf3\\b0\\i0\\strike0\\ul0 ", "\\f1\\fs20\\cf4\\b0\\i\\strike0\\ul0 ",
};

struct Files {
  std::string folder, colorized, plain, undo;
};

const Files& files() {
  static const Files f = [] {
    Files out;
    out.folder = (std::filesystem::temp_directory_path() / "lathwick-bench-reload").string();
    std::filesystem::create_directories(out.folder);
    out.colorized = out.folder + "/TEMP3.TXT";
    out.plain = out.folder + "/TEMP2.TXT";
    out.undo = out.folder + "/UNDO.RTF";
    std::ofstream rtf(out.colorized, std::ios::binary);
    std::ofstream txt(out.plain, std::ios::binary);
    rtf << "{\\rtf1\\ansi\\deff0\\deftab720{\\fonttbl{\\f0\\fmodern Courier New;}{\\f1\\fswiss Arial;}}\r\n"
           "{\\colortbl\\red0\\green0\\blue0;\\red255\\green0\\blue0;\\red0\\green128\\blue0;"
           "\\red0\\green0\\blue255;\\red128\\green128\\blue128;}\r\n"
           "\\deflang1033\\pard\\plain\\li200 \\f0\\fs20\\cf0\\b0\\i0\\strike0\\ul0\r\n";
    char line[96];
    for (int i = 0; i < kLines; ++i) {
      if (i % 10 == 9) {
        std::snprintf(line, sizeof line, "(TOOL %d DIA 12.5)", i % 40);
      } else {
        std::snprintf(line, sizeof line, "N%d G0%d X%d.%03d Y-%d.%03d F300", i * 10, i % 4, i % 500, i % 997,
                      i % 300, i % 991);
      }
      const char* attribute = kAttributes[i % 10 == 9 ? 3 : (i % 4 == 0 ? 1 : (i % 3 == 0 ? 2 : 0))];
      rtf << (i ? "\\par\\li200 " : "\\li200 ") << attribute << line << "\r\n";
      txt << line << (i + 1 < kLines ? "\r\n" : "");
    }
    rtf << "\\par}\r\n";
    return out;
  }();
  return f;
}

long peakResidentMegabytes() {
  std::ifstream status("/proc/self/status");
  std::string key;
  long kb = 0;
  while (status >> key) {
    if (key == "VmHWM:") {
      status >> kb;
      break;
    }
  }
  return kb / 1024;
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
  state.counters["peak_MB"] = static_cast<double>(peakResidentMegabytes());
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
  state.counters["peak_MB"] = static_cast<double>(peakResidentMegabytes());
}

// The colorized load alone (no snapshot: the control is empty).
void BM_LoadColorizedRichText(benchmark::State& state) {
  const Files& f = files();
  auto box = shownBox();
  for (auto _ : state) {
    state.PauseTiming();
    box->setTextBytes("");
    state.ResumeTiming();
    box->loadFile(f.colorized, FileKind::RichText);
  }
  state.counters["lines"] = box->lineCount();
  state.counters["peak_MB"] = static_cast<double>(peakResidentMegabytes());
}

void BM_LoadPlainText(benchmark::State& state) {
  const Files& f = files();
  auto box = shownBox();
  for (auto _ : state) {
    state.PauseTiming();
    box->setTextBytes("");
    state.ResumeTiming();
    box->loadFile(f.plain, FileKind::PlainText);
  }
  state.counters["lines"] = box->lineCount();
  state.counters["peak_MB"] = static_cast<double>(peakResidentMegabytes());
}

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
int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  return 0;
}
