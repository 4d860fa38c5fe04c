#pragma once
// The editor's side of the start-up sequence: the real executable folder and command line,
// the splash, the message boxes and the main window.
#include <QStringList>
#include <functional>
#include <memory>

#include "platform/settings_store.h"
#include "shell/startup.h"

class QWidget;

namespace lathwick::gui {

class QtStartupHost : public StartupHost {
 public:
  using MainWindowFactory = std::function<QWidget*(const AppValues&, SettingsStore&)>;
  QtStartupHost(QStringList arguments, MainWindowFactory makeMainWindow);
  ~QtStartupHost() override;

  std::string executableFolder() override;
  std::string commandLine() override;
  void makeCurrentDirectory(const std::string& folder) override;
  SettingsStore& settings() override;
  void showSplash() override;
  void showMissingDataFile(const std::string& message) override;
  void loadMainWindow(const AppValues& values) override;
  void loadSchemeEditor(const AppValues& values) override;
  void showStartupError(const std::string& message, const std::string& caption) override;

  QWidget* mainWindow() const { return mainWindow_; }

 private:
  QStringList arguments_;
  MainWindowFactory makeMainWindow_;
  SettingsStore settings_;
  std::unique_ptr<QWidget> splash_;
  QWidget* mainWindow_ = nullptr;
};

}  // namespace lathwick::gui
