#pragma once
// The one QApplication of a GUI test process, made on first use (never deleted).
#include <QApplication>

namespace lathwick::test {

inline QApplication& testApp() {
  static int argc = 1;
  static char name[] = "lathwick_gui_tests";
  static char* argv[] = {name, nullptr};
  static QApplication* app = qApp ? qApp : new QApplication(argc, argv);
  return *app;
}

}  // namespace lathwick::test
