// lathwick: the G-code editor.
#include <QApplication>
#include <QPointer>
#include <QTimer>
#include <cstdio>

#include "document/document_table.h"
#include "document/gui/frm_editor.h"
#include "extend/vbscript/console_host.h"
#include "platform/file_system.h"
#include "shell/gui/frame_scripts.h"
#include "platform/gui/command_guard.h"
#include "platform/memory_reuse.h"
#include "shell/gui/frame_look.h"
#include "shell/gui/mdi_form.h"
#include "shell/gui/qt_startup_host.h"
#include "shell/gui/disk_change_watch.h"
#include "shell/gui/recovery_controller.h"

int main(int argc, char** argv) {
  lathwick::keepLargeBuffersForReuse();
  lathwick::gui::GuardedApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Lathwick"));
  QApplication::setApplicationVersion(QStringLiteral(LATHWICK_VERSION_TEXT));
  QGuiApplication::setDesktopFileName(QStringLiteral("org.lathwick.Lathwick"));
  lathwick::gui::useFallbackIconTheme();

  // "--quit-after-start" lets tests and scripts check that start-up completes;
  // "--screenshot FILE" saves a picture of the main window once it is up, then quits.
  QStringList args = QApplication::arguments();
  if (args.contains(QStringLiteral("--version"))) {
    std::printf("lathwick %s\n", LATHWICK_VERSION_TEXT);
    return 0;
  }
  const bool quitAfterStart = args.removeAll(QStringLiteral("--quit-after-start")) > 0;
  // "--macro SCRIPT" runs the script's Sub Main once the editor is up (with the file named on
  // the command line open), then closes without asking: exit status 1 after a script error.
  QString macro;
  if (const auto at = args.indexOf(QStringLiteral("--macro")); at > 0 && at + 1 < args.size()) {
    macro = args.at(at + 1);
    args.remove(at, 2);
  }
  QString screenshot;
  if (const auto at = args.indexOf(QStringLiteral("--screenshot")); at > 0 && at + 1 < args.size()) {
    screenshot = args.at(at + 1);
    args.remove(at, 2);
  }

  lathwick::gui::MDIForm1* frame = nullptr;
  lathwick::gui::RecoveryController* recovery = nullptr;
  lathwick::gui::QtStartupHost host(args, [&frame, &recovery](const lathwick::AppValues& values,
                                                              lathwick::SettingsStore& settings) {
    frame = new lathwick::gui::MDIForm1(values, settings);
    frame->setAttribute(Qt::WA_DeleteOnClose);
    frame->load();
    recovery = lathwick::gui::installRecovery(*frame);
    lathwick::gui::installDiskChangeWatch(*frame);
    return frame;
  });
  const auto result = lathwick::runStartup(host);
  if (result.outcome == lathwick::StartupOutcome::EndedMissingDataFile) return 1;
  const QPointer<lathwick::gui::MDIForm1> guard(frame);
  if (frame) frame->openStartupFile();
  // Recovered documents are offered to a person, not to an unattended run.
  if (frame && recovery && screenshot.isEmpty() && macro.isEmpty() && !quitAfterStart) recovery->offerRecovered();
  // The hook through which the crash-recovery test edits the real program: the text is typed into
  // the active document (a new one when none is open) once the program is up.
  if (const QByteArray typed = qgetenv("LATHWICK_TEST_TYPE"); frame && !typed.isEmpty()) {
    QTimer::singleShot(0, frame, [frame, typed] {
      lathwick::gui::frmEditor* editor = frame->activeEditor();
      if (!editor) editor = frame->newDocument();
      editor->replaceSelection(typed.toStdString());
    });
  }
  if (!screenshot.isEmpty() && frame) {
    // The picture for the documentation: the program coloured by modes beside a second copy
    // coloured by codes.
    if (frame->activeEditor()) {
      frame->commands().run("mnuModal", 0);
      frame->LoadDoc(frame->activeEditor()->filename());
      frame->commands().run("mnuModal", 1);
      frame->commands().run("mnuTileVert");
    }
    QTimer::singleShot(1500, frame, [frame, screenshot] {
      frame->grab().save(screenshot);
      // The colours changed the documents; the picture is all that was wanted of them.
      for (lathwick::gui::frmEditor* editor : frame->editors()) editor->record().changed = false;
      frame->close();
      QApplication::quit();
    });
  }
  if (!macro.isEmpty() && frame) {
    QTimer::singleShot(0, frame, [frame, macro] {
      const std::string path = macro.toLocal8Bit().toStdString();
      const std::optional<std::string> text = lathwick::readWholeFile(path);
      int code = 0;
      if (!text) {
        std::fprintf(stderr, "Cannot read %s\n", path.c_str());
        code = 1;
      } else if (const auto error = frame->scripts()->host().runUnattended(*text, path, "Main")) {
        std::fputs(lathwick::vbs::formatErrorRecord(*error).c_str(), stderr);
        code = 1;
      }
      for (lathwick::gui::frmEditor* editor : frame->editors()) editor->record().changed = false;
      frame->close();
      QCoreApplication::exit(code);
    });
  }
  if (quitAfterStart) QTimer::singleShot(0, &app, &QApplication::quit);
  const int code = app.exec();
  // The frame reads the settings held by the start-up host: it must go first.
  delete guard.data();
  return code;
}
