#include "shell/gui/qt_startup_host.h"

#include <QCoreApplication>
#include <QDir>
#include <QLabel>
#include <QMessageBox>

namespace lathwick::gui {

QtStartupHost::QtStartupHost(QStringList arguments, MainWindowFactory makeMainWindow)
    : arguments_(std::move(arguments)),
      makeMainWindow_(std::move(makeMainWindow)),
      settings_(SettingsStore::defaultPath()) {}

QtStartupHost::~QtStartupHost() = default;

std::string QtStartupHost::executableFolder() {
  return QCoreApplication::applicationDirPath().toLocal8Bit().toStdString();
}

std::string QtStartupHost::commandLine() {
  // The program's command line without its own name, the arguments joined by one blank.
  return arguments_.mid(1).join(' ').toLocal8Bit().toStdString();
}

void QtStartupHost::makeCurrentDirectory(const std::string& folder) {
  QDir::setCurrent(QString::fromLocal8Bit(folder.c_str()));
}

SettingsStore& QtStartupHost::settings() { return settings_; }

void QtStartupHost::showSplash() {
  auto label = std::make_unique<QLabel>(QStringLiteral("<h2>Lathwick</h2><p>G-code editor</p>"));
  label->setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
  label->setAlignment(Qt::AlignCenter);
  label->setMinimumSize(320, 160);
  label->show();
  splash_ = std::move(label);
}

void QtStartupHost::showMissingDataFile(const std::string& message) {
  splash_.reset();
  QMessageBox::information(nullptr, QStringLiteral("Lathwick"), QString::fromLatin1(message.c_str()));
}

void QtStartupHost::loadMainWindow(const AppValues& values) {
  mainWindow_ = makeMainWindow_(values, settings_);
  splash_.reset();
  if (mainWindow_) mainWindow_->show();
}

void QtStartupHost::loadSchemeEditor(const AppValues&) {}

void QtStartupHost::showStartupError(const std::string& message, const std::string& caption) {
  QMessageBox::warning(nullptr, QString::fromLatin1(caption.c_str()), QString::fromLatin1(message.c_str()));
}

}  // namespace lathwick::gui
