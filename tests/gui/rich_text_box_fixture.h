#pragma once
// A shown rich text control of a fixed size on the offscreen platform, for the control's tests.
#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

#include "document/gui/rich_text_box.h"
#include "gui_app.h"

namespace lathwick::test {

class RichTextBoxTest : public ::testing::Test {
 protected:
  void SetUp() override {
    testApp();
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
