// The editor as the machinist uses it, for the benchmarks of the editor window: a frame window
// over its own application folder with the shipped schemes and a generated 1,000,000-line CAM
// program, opened through the frame's LoadDoc and coloured through the document's menu entries.
// A message box would stop a run: every question is counted and answered at once, and a run
// that was asked anything is reported as failed.
#pragma once

#include <benchmark/benchmark.h>

#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <algorithm>
#include <memory>
#include <optional>
#include <string>

#include "document/document_table.h"
#include "document/gui/frm_editor.h"
#include "document/gui/rich_text_box.h"
#include "document/gui/text_control.h"
#include "format/bundled_schemes.h"
#include "format/scheme_data_file.h"
#include "generated_program.h"
#include "platform/gui/dialogs.h"
#include "platform/settings_store.h"
#include "shell/gui/mdi_form.h"
#include "shell/startup.h"

namespace lathwick::bench {

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

inline constexpr int kModes = 0, kCodes = 1;

class Editor {
 public:
  // `folderName`: the scratch folder under the system's temporary folder, one per benchmark.
  explicit Editor(const std::string& folderName = "lathwick-bench-gui-editor") : folder_(folderName) {
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
    writeProgram(program_, ProgramStyle::CamPost);
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
  void view(int index) { run("mnuModal", index); }
  void undo() { run("mnuUndo"); }
  void run(const std::string& menu, int index = -1) {
    frame_->menuAction(menu, index)->trigger();
    QApplication::processEvents();
  }
  void closeAll() {
    for (gui::frmEditor* e : frame_->editors()) e->record().changed = false;
    frame_->mdiArea()->closeAllSubWindows();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }
  gui::MDIForm1& frame() { return *frame_; }
  // A file of the scratch folder (the program, the application folder's files).
  std::string file(const std::string& name) const { return folder_.file(name); }
  CountingDialogs dialogs;

 private:
  ScratchFolder folder_;
  AppValues values_;
  std::unique_ptr<SettingsStore> settings_;
  std::string program_;
  std::unique_ptr<gui::MDIForm1> frame_;
  gui::ScopedDialogs installed_{dialogs};
};

// Made on first use and gone before the application object: windows must not outlive it.
inline std::unique_ptr<Editor> theEditor;
inline Editor& editor() {
  if (!theEditor) theEditor = std::make_unique<Editor>();
  return *theEditor;
}

// The styles of one line of the program: a view that changed nothing would be fast for nothing.
inline std::string lineStyles(gui::frmEditor* e) {
  constexpr int kLine = 500001;
  const long at = e->rtfTextBox().lineIndex(kLine);
  return e->richTextBox().stylesOf(at, at + e->rtfTextBox().lineLength(kLine));
}

// The peak memory of the timed steps: reset as each begins, the highest seen as they end.
class StepMemory {
 public:
  void begin() { resetPeakResident(); }
  void end() { peak_ = std::max(peak_, peakResidentMegabytes()); }
  double peak() const { return peak_; }

 private:
  double peak_ = 0;
};

// The counters every benchmark of the window reports: the peak memory of the timed step (the
// process's resident memory at its highest while the step ran, what was resident before it
// included) and the document's line count.
inline void finish(benchmark::State& state, gui::frmEditor* e, const StepMemory& memory) {
  if (editor().dialogs.count) state.SkipWithError(("asked: " + editor().dialogs.last).c_str());
  if (e) state.counters["lines"] = e->LineCount();
  state.counters["peak_MB"] = memory.peak();
}

}  // namespace lathwick::bench
