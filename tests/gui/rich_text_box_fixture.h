#pragma once
// A shown rich text control of a fixed size on the offscreen platform, for the control's tests.
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "document/gui/rich_text_box.h"

namespace lathwick::test {

// The application object lives until the process ends: destroying it from the exit handlers,
// after Qt's own globals are gone, crashes.
inline void ensureApplication() {
  if (QApplication::instance()) return;
  static int argc = 1;
  static char name[] = "lathwick_gui_tests";
  static char* argv[] = {name, nullptr};
  new QApplication(argc, argv);  // deliberately never deleted
}

class RichTextBoxTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ensureApplication();
    box = std::make_unique<RichTextBox>();
    box->resize(400, 300);
    box->show();
    QApplication::processEvents();
  }
  void TearDown() override { box.reset(); }

  // "L0\r\nL1\r\n..." with `count` lines.
  static std::string numberedLines(int count) {
    std::string s;
    for (int i = 0; i < count; ++i) s += (i ? "\r\n" : "") + std::string("N") + std::to_string(i * 10) + " G01 X1";
    return s;
  }

  std::unique_ptr<RichTextBox> box;
};

}  // namespace lathwick::test
