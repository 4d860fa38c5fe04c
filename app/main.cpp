// lathwick: the G-code editor.
#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QTimer>

#include "shell/gui/qt_startup_host.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Lathwick"));

  // "--quit-after-start" lets tests and scripts check that start-up completes.
  QStringList args = QApplication::arguments();
  const bool quitAfterStart = args.removeAll(QStringLiteral("--quit-after-start")) > 0;

  lathwick::gui::QtStartupHost host(args, [](const lathwick::AppValues& values) -> QWidget* {
    auto* window = new QMainWindow;
    window->setAttribute(Qt::WA_DeleteOnClose);
    window->setWindowTitle(QString::fromLatin1(values.VersionText.c_str()));
    window->setCentralWidget(new QMdiArea(window));
    window->resize(1000, 700);
    return window;
  });
  const auto result = lathwick::runStartup(host);
  if (result.outcome == lathwick::StartupOutcome::EndedMissingDataFile) return 1;
  if (quitAfterStart) QTimer::singleShot(0, &app, &QApplication::quit);
  return app.exec();
}
