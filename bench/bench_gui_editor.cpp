// The editor as the machinist uses it, on a 1,000,000-line CAM program: the frame window's
// LoadDoc, then View Modes and View Codes through their menu entries. Runs offscreen; the peak
// resident memory of the process is reported as the counter "peak_MB".
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <memory>
#include <optional>
#include <string>

#include "document/document_table.h"
#include "document/gui/frm_editor.h"
#include "document/gui/text_control.h"
#include "format/bundled_schemes.h"
#include "format/scheme_data_file.h"
#include "platform/gui/dialogs.h"
#include "platform/gui/rich_text_box.h"
#include "shell/gui/mdi_form.h"
#include "shell/settings_store.h"
#include "shell/startup.h"

namespace {

using namespace lathwick;

constexpr int kLines = 1000000;

// A message box would stop the run: every question is counted and answered at once, and a run
// that was asked anything is reported as failed.
class CountingDialogs : public gui::Dialogs {
 public:
  gui::Answer message(const std::string& text, const std::string&, gui::Buttons, gui::Icon) override {
    last = text;
    ++count;
    return gui::Answer::No;
  }
  std::optional<std::string> chooseFile(const gui::FileRequest&) override { return std::nullopt; }
  void openInBrowser(const std::string&) override {}
  int count = 0;
  std::string last;
};

// A milling program as a CAM post writes it: tool changes with comments, rapid moves, long runs
// of linear and circular cuts with modal codes left out, feeds, and the odd block delete.
std::string writeProgram(const std::string& folder) {
  const std::string path = folder + "/CAM1M.NC";
  std::ofstream out(path, std::ios::binary);
  out << "%\r\nO1000 (POCKET ROUGHING)\r\n";
  char line[128];
  int n = 10;
  for (int i = 2; i < kLines - 2; ++i, n += 10) {
    const int k = i % 400;
    if (k == 0) {
      std::snprintf(line, sizeof line, "N%d T%02d M06 (TOOL %d D12.0 FLAT END MILL)", n, i / 400 % 20 + 1,
                    i / 400 % 20 + 1);
    } else if (k == 1) {
      std::snprintf(line, sizeof line, "N%d G90 G54 G00 X%d.%03d Y-%d.%03d S2400 M03", n, i % 250, i % 997,
                    i % 180, i % 991);
    } else if (k == 2) {
      std::snprintf(line, sizeof line, "N%d G43 H%02d Z25.0 M08", n, i / 400 % 20 + 1);
    } else if (k % 50 == 3) {
      std::snprintf(line, sizeof line, "/N%d G00 Z5.0", n);
    } else if (k % 7 == 0) {
      std::snprintf(line, sizeof line, "N%d G0%d X%d.%03d Y%d.%03d I%d.%03d J-%d.%03d", n, 2 + k % 2, i % 250,
                    i % 997, i % 180, i % 991, k % 9, k % 500, k % 7, k % 300);
    } else if (k % 13 == 0) {
      std::snprintf(line, sizeof line, "N%d G01 Z-%d.%02d F150.", n, k % 5, k % 100);
    } else {
      std::snprintf(line, sizeof line, "N%d X%d.%03d Y%d.%03d F%d.", n, i % 250, i % 997, i % 180, i % 991,
                    600 + k % 5 * 100);
    }
    out << line << "\r\n";
  }
  out << "N" << n << " M30\r\n%\r\n";
  return path;
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

// A frame window over its own application folder, with the shipped schemes.
class Editor {
 public:
  Editor() : folder_(std::filesystem::temp_directory_path() / "lathwick-bench-gui-editor") {
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
    const std::string app = folder_.string() + "/";
    long n = 0;
    for (const SchemeRecord& scheme : bundledSchemes()) writeSchemeRecord(app + "Lathwick.dat", ++n, scheme);
    values_.AppFolder = app;
    values_.DataFilePath = app + "Lathwick.dat";
    setWorkFiles(values_, app);
    values_.CurrentScheme = 1;
    values_.VersionText = makeVersionText(kAppTitle, 0, 1);
    settings_ = std::make_unique<SettingsStore>(app + "Lathwick.ini");
    program_ = writeProgram(folder_.string());
    frame_ = std::make_unique<gui::MDIForm1>(values_, *settings_);
    frame_->load();
    frame_->resize(1024, 768);
    frame_->show();
    QApplication::processEvents();
  }
  ~Editor() {
    closeAll();
    frame_.reset();
    std::filesystem::remove_all(folder_);
  }

  gui::frmEditor* open() { return frame_->LoadDoc(program_); }
  void view(int index) {
    frame_->menuAction("mnuModal", index)->trigger();
    QApplication::processEvents();
  }
  void closeAll() {
    for (gui::frmEditor* e : frame_->editors()) e->record().changed = false;
    frame_->mdiArea()->closeAllSubWindows();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  CountingDialogs dialogs;

 private:
  std::filesystem::path folder_;
  AppValues values_;
  std::unique_ptr<SettingsStore> settings_;
  std::string program_;
  std::unique_ptr<gui::MDIForm1> frame_;
  gui::ScopedDialogs installed_{dialogs};
};

// Made on first use and gone before the application object: windows must not outlive it.
std::unique_ptr<Editor> theEditor;
Editor& editor() {
  if (!theEditor) theEditor = std::make_unique<Editor>();
  return *theEditor;
}

// The styles of one line of the program: a view that changed nothing would be fast for nothing.
std::string lineStyles(gui::frmEditor* e) {
  constexpr int kLine = 500001;
  const long at = e->rtfTextBox().lineIndex(kLine);
  return e->richTextBox().stylesOf(at, at + e->rtfTextBox().lineLength(kLine));
}

void finish(benchmark::State& state, gui::frmEditor* e) {
  if (editor().dialogs.count) state.SkipWithError(("asked: " + editor().dialogs.last).c_str());
  if (e) state.counters["lines"] = e->LineCount();
  state.counters["peak_MB"] = static_cast<double>(peakResidentMegabytes());
}

// File > Open as far as the frame goes: the program copied to the work file and shown.
void BM_LoadDoc(benchmark::State& state) {
  gui::frmEditor* e = nullptr;
  for (auto _ : state) {
    state.PauseTiming();
    editor().closeAll();
    state.ResumeTiming();
    e = editor().open();
    QApplication::processEvents();
  }
  finish(state, e);
}

// View Modes on the plain program just opened.
void BM_ViewModes(benchmark::State& state) {
  gui::frmEditor* e = nullptr;
  std::string before;
  for (auto _ : state) {
    state.PauseTiming();
    editor().closeAll();
    e = editor().open();
    before = lineStyles(e);
    state.ResumeTiming();
    editor().view(0);
  }
  if (e && lineStyles(e) == before) state.SkipWithError("the program was not coloured by modes");
  finish(state, e);
}

// View Codes on a program coloured by modes: the undo snapshot is then rich text.
void BM_ViewCodes(benchmark::State& state) {
  gui::frmEditor* e = nullptr;
  std::string before;
  for (auto _ : state) {
    state.PauseTiming();
    editor().closeAll();
    e = editor().open();
    editor().view(0);
    before = lineStyles(e);
    state.ResumeTiming();
    editor().view(1);
  }
  if (e && lineStyles(e) == before) state.SkipWithError("the program was not coloured by codes");
  finish(state, e);
}

}  // namespace

BENCHMARK(BM_LoadDoc)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ViewModes)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ViewCodes)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  benchmark::Shutdown();
  theEditor.reset();
  return 0;
}
