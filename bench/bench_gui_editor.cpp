// The editor as the machinist uses it, on a 1,000,000-line CAM program: the frame window's
// LoadDoc, then View Modes and View Codes through their menu entries. Runs offscreen; the peak
// resident memory of the process is reported as the counter "peak_MB".
#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <initializer_list>
#include <memory>
#include <optional>
#include <string>

#include "document/document_table.h"
#include "document/gui/frm_editor.h"
#include "document/gui/text_control.h"
#include "format/bundled_schemes.h"
#include "format/scheme_data_file.h"
#include "generated_program.h"
#include "gui_bench_main.h"
#include "platform/gui/dialogs.h"
#include "document/gui/rich_text_box.h"
#include "shell/gui/mdi_form.h"
#include "platform/settings_store.h"
#include "shell/startup.h"

namespace {

using namespace lathwick;

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

// A frame window over its own application folder, with the shipped schemes.
class Editor {
 public:
  Editor() {
    const std::string app = folder_.path().string() + "/";
    long n = 0;
    for (const SchemeRecord& scheme : bundledSchemes()) writeSchemeRecord(app + "Lathwick.dat", ++n, scheme);
    values_.AppFolder = app;
    values_.DataFilePath = app + "Lathwick.dat";
    setWorkFiles(values_, app);
    values_.CurrentScheme = 1;
    values_.VersionText = makeVersionText(kAppTitle, 0, 1);
    settings_ = std::make_unique<SettingsStore>(app + "Lathwick.ini");
    program_ = folder_.file("CAM1M.NC");
    bench::writeProgram(program_, bench::ProgramStyle::CamPost);
    frame_ = std::make_unique<gui::MDIForm1>(values_, *settings_);
    frame_->load();
    frame_->resize(1024, 768);
    frame_->show();
    QApplication::processEvents();
  }
  ~Editor() {
    closeAll();
    frame_.reset();
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
  bench::ScratchFolder folder_{"lathwick-bench-gui-editor"};
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
  state.counters["peak_MB"] = bench::peakResidentMegabytes();
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

constexpr int kModes = 0, kCodes = 1;

// One view timed on the program just opened, after the views given (untimed); a view that left
// the program's colours as they were counts as failed.
void timeView(benchmark::State& state, std::initializer_list<int> viewsBefore, int view, const char* failure) {
  gui::frmEditor* e = nullptr;
  std::string before;
  for (auto _ : state) {
    state.PauseTiming();
    editor().closeAll();
    e = editor().open();
    for (int v : viewsBefore) editor().view(v);
    before = lineStyles(e);
    state.ResumeTiming();
    editor().view(view);
  }
  if (e && lineStyles(e) == before) state.SkipWithError(failure);
  finish(state, e);
}

// View Modes on the plain program just opened.
void BM_ViewModes(benchmark::State& state) { timeView(state, {}, kModes, "the program was not coloured by modes"); }

// View Codes on a program coloured by modes: the undo snapshot is then rich text.
void BM_ViewCodes(benchmark::State& state) {
  timeView(state, {kModes}, kCodes, "the program was not coloured by codes");
}

}  // namespace

BENCHMARK(BM_LoadDoc)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ViewModes)->Unit(benchmark::kMillisecond)->Iterations(3);
BENCHMARK(BM_ViewCodes)->Unit(benchmark::kMillisecond)->Iterations(3);

int main(int argc, char** argv) {
  return lathwick::bench::runWithApplication(argc, argv, [] { theEditor.reset(); });
}
