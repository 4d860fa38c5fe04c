#pragma once
// Saves a picture of a window when LATHWICK_SCREENSHOT_DIR names a folder, so a person can look
// at what a test drove (run the tests under xvfb with the xcb platform for real fonts).
#include <QApplication>
#include <QDir>
#include <QWidget>
#include <cstdlib>

namespace lathwick::test {

inline void saveScreenshot(QWidget* window, const char* name) {
  const char* dir = std::getenv("LATHWICK_SCREENSHOT_DIR");
  if (!dir || !window) return;
  QApplication::processEvents();
  window->grab().save(QDir(QString::fromLocal8Bit(dir)).filePath(QString::fromLatin1(name) + QStringLiteral(".png")));
}

}  // namespace lathwick::test
