// The command boundary: an exception thrown inside a command or a dialog button is reported as
// "The error ... occurred." and the editor goes on with its documents as they were.
#include <QPushButton>
#include <stdexcept>

#include "frame_fixture.h"
#include "platform/gui/command_guard.h"
#include "shell/gui/status_panels.h"

using namespace lathwick;
using lathwick::test::FrameTest;

TEST_F(FrameTest, AnExceptionInsideACommandIsReportedAndTheDocumentsStay) {
  const std::string path = files.write("part.nc", "G00 X1\r\nG01 Y2\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  ASSERT_NE(e, nullptr);
  e->rtfTextBox().setSelection(e->rtfTextBox().textLength(), 0);
  e->rtfTextBox().replaceSelection("M30\r\n");  // an unsaved change
  e->record().changed = true;
  const std::string text = e->rtfTextBox().text();

  // A command that fails the way a defect in the core would: half-way, with the status set.
  frame->commands().add("mnuAbout", [this](int) {
    frame->setStatusText("Operating... [Esc] to cancel");
    (void)std::string_view("X9").substr(5);
  });
  dialogs.messages.clear();
  trigger("mnuAbout");
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{{"The error 51 Internal error occurred.", "Lathwick",
                                                             gui::Buttons::Ok, gui::Icon::Exclamation}}));
  EXPECT_EQ(frame->statusPanels().text("Stat"), "Press F1 for help.");

  // The editor goes on: the document is as it was and other commands still run.
  ASSERT_EQ(frame->editors().size(), 1u);
  EXPECT_EQ(e->rtfTextBox().text(), text);
  EXPECT_TRUE(e->record().changed);
  trigger("mnuNew");
  EXPECT_EQ(frame->editors().size(), 2u);
}

TEST_F(FrameTest, AGuardedDialogButtonReportsWhatEscapesIt) {
  start();
  dialogs.messages.clear();
  QPushButton button;
  int runs = 0;
  QObject::connect(&button, &QPushButton::clicked, &button, gui::guarded([&runs] {
                     ++runs;
                     throw std::bad_alloc();
                   }));
  button.click();
  button.click();
  EXPECT_EQ(runs, 2);
  ASSERT_EQ(dialogs.messages.size(), 2u);
  EXPECT_EQ(dialogs.messages[0].text, "The error 7 Out of memory occurred.");
}
