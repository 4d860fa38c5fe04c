#pragma once
// A frame window on a fresh application folder and settings file, with scripted answers to
// every question it asks. Tests drive it through the real menu actions.
#include <gtest/gtest.h>

#include <QAction>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <filesystem>
#include <memory>
#include <string>
#include <vector>

#include "document/gui/frm_editor.h"
#include "shell/gui/mdi_form.h"
#include "platform/settings_store.h"
#include "shell/startup.h"
#include "scripted_dialogs.h"
#include "support/temp_dir.h"

// Qt's own entry for a key that may be a shortcut (what the window system's key delivery runs
// first); true when a shortcut took the key.
Q_GUI_EXPORT bool qt_sendShortcutOverrideEvent(QObject* o, ulong timestamp, int k, Qt::KeyboardModifiers mods,
                                               const QString& text = QString(), bool autorep = false,
                                               ushort count = 1);

namespace lathwick::test {

// Presses a key the way the user would: shortcuts of the active window first, else the widget.
inline bool pressShortcut(QWidget* w, int key, Qt::KeyboardModifiers mods = Qt::NoModifier) {
  const bool taken = qt_sendShortcutOverrideEvent(w, 0, key, mods);
  QApplication::processEvents();
  return taken;
}

inline QApplication& guiApp() {
  static int argc = 1;
  static char name[] = "lathwick_gui_tests";
  static char* argv[] = {name, nullptr};
  static QApplication* app = new QApplication(argc, argv);
  return *app;
}

// Key and mouse input delivered as the window system would (press, then release).
inline void keyClick(QWidget* w, int key, Qt::KeyboardModifiers mods = Qt::NoModifier, const QString& text = {}) {
  QKeyEvent press(QEvent::KeyPress, key, mods, text);
  QApplication::sendEvent(w, &press);
  QKeyEvent release(QEvent::KeyRelease, key, mods, text);
  QApplication::sendEvent(w, &release);
  QApplication::processEvents();
}
inline void keyRelease(QWidget* w, int key) {
  QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
  QApplication::sendEvent(w, &release);
}
inline void mouseClick(QWidget* w, Qt::MouseButton button) {
  const QPointF at(w->width() / 2.0, w->height() / 2.0);
  QMouseEvent press(QEvent::MouseButtonPress, at, w->mapToGlobal(at), button, button, Qt::NoModifier);
  QApplication::sendEvent(w, &press);
  QMouseEvent release(QEvent::MouseButtonRelease, at, w->mapToGlobal(at), button, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(w, &release);
}

// The child widget or action of `parent` named `name` (a test failure when there is none).
template <class T>
T* child(const QObject* parent, const char* name) {
  T* w = parent->findChild<T*>(QString::fromLatin1(name));
  EXPECT_NE(w, nullptr) << name;
  return w;
}

class FrameTest : public ::testing::Test {
 protected:
  FrameTest() : settings(config.file("Lathwick.ini")) {
    guiApp();
    app.write("Lathwick.dat", std::string(100, ' '));
    values.AppFolder = app.folder();
    values.DataFilePath = app.folder() + "Lathwick.dat";
    setWorkFiles(values, values.AppFolder);
    values.CurrentScheme = 1;
    values.VersionText = makeVersionText(kAppTitle, 0, 1);
  }
  ~FrameTest() override {
    if (frame) {
      // Leave without questions: whatever a test left changed is dropped.
      for (gui::frmEditor* e : frame->editors()) e->record().changed = false;
      frame.reset();
    }
  }

  gui::MDIForm1& start() {
    frame = std::make_unique<gui::MDIForm1>(values, settings);
    frame->load();
    frame->show();
    QApplication::processEvents();
    return *frame;
  }

  // Runs a command through the action of the menu now shown.
  void trigger(const std::string& name, int index = -1) {
    QAction* action = frame->menuAction(name, index);
    ASSERT_NE(action, nullptr) << name;
    ASSERT_TRUE(action->isEnabled()) << name << " is disabled";
    action->trigger();
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  }

  gui::frmEditor* openFile(const std::string& path) {
    dialogs.files.push_back(path);
    trigger("mnuOpen");
    return frame->activeEditor();
  }

  std::string caption(gui::frmEditor* e) const { return e->windowTitle().toStdString(); }

  // The shipped schemes in place of the blank data file; false when the build folder has none.
  bool useBundledSchemes() {
    const std::string bundled = std::string(LATHWICK_APP_DIR) + "/Lathwick.dat";
    if (!std::filesystem::exists(bundled)) return false;
    std::filesystem::copy_file(bundled, values.DataFilePath, std::filesystem::copy_options::overwrite_existing);
    return true;
  }

  TempDir config, app, files;
  SettingsStore settings;
  AppValues values;
  ScriptedDialogs dialogs;
  std::unique_ptr<gui::MDIForm1> frame;
};

}  // namespace lathwick::test
