// The progress form and the Qt pass monitor: the form appears only while progress runs, Esc on
// it sets the process-wide cancel flag, and a new pass clears it. Also the main window's handle
// on the dialogs.
#include <gtest/gtest.h>

#include <QLineEdit>
#include <QProgressBar>

#include "dialog_fixture.h"
#include "transform/gui/cancel_flag.h"
#include "transform/gui/frm_operate.h"
#include "transform/gui/frm_prog.h"
#include "transform/gui/frm_renumber.h"
#include "transform/gui/frm_search.h"
#include "transform/gui/transform_dialogs.h"
#include "transform/gui/qt_pass_monitor.h"

using namespace lathwick;
using namespace lathwick::gui;

TEST(ProgressForm, ShownWhileProgressRunsAndEscCancels) {
  test::testApp();
  QWidget frame;
  std::vector<std::string> status;
  QtPassMonitor monitor(nullptr, [&](const std::string& t) { status.push_back(t); }, &frame);
  monitor.clearCancel();
  monitor.statusText("Processing... [Esc] to cancel");
  EXPECT_EQ(frame.findChild<frmProg*>(), nullptr);

  monitor.progressStart(1000);
  auto* form = frame.findChild<frmProg*>();
  ASSERT_NE(form, nullptr);
  EXPECT_TRUE(form->isVisible());
  monitor.progressValue(250);
  EXPECT_EQ(form->bar()->maximum(), 1000);
  EXPECT_EQ(form->bar()->value(), 250);
  // Values close together are shown only now and then, but the last one always at once.
  monitor.progressValue(1000);
  EXPECT_EQ(form->bar()->value(), 1000);

  QKeyEvent other(QEvent::KeyPress, Qt::Key_A, Qt::NoModifier, "a");
  QCoreApplication::sendEvent(form, &other);
  EXPECT_FALSE(monitor.cancelRequested());
  QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier, QString(QChar(27)));
  QCoreApplication::sendEvent(form, &esc);
  EXPECT_TRUE(monitor.cancelRequested());
  EXPECT_TRUE(form->isVisible());  // the pass closes it when it stops, not the key

  monitor.progressEnd();
  EXPECT_EQ(frame.findChild<frmProg*>(), nullptr);
  monitor.clearCancel();
  EXPECT_FALSE(cancelRequested());
  EXPECT_EQ(status, (std::vector<std::string>{"Processing... [Esc] to cancel"}));
}

// The main window's handle: a closing document takes its dialogs with it, and each renumber
// use gets a dialog that reads the settings afresh.
TEST(TransformDialogs, ClosingDocumentClosesItsDialogsAndRenumberReadsSettingsEachTime) {
  test::testApp();
  test::TempDir config;
  SettingsStore settings(config.file("Lathwick.ini"));
  QWidget frame;
  TransformDialogs dialogs(settings, &frame);
  test::FakeDocument doc({"X1"}), other({"X2"});

  dialogs.showSearch(doc);
  dialogs.operate(doc);
  auto* operate = frame.findChild<frmOperate*>();
  ASSERT_NE(operate, nullptr);
  dialogs.forget(&other);
  EXPECT_TRUE(dialogs.search().isVisible());
  EXPECT_TRUE(operate->isVisible());
  dialogs.forget(&doc);
  EXPECT_FALSE(dialogs.search().isVisible());
  EXPECT_FALSE(operate->isVisible());

  dialogs.renumber(doc);
  settings.save("Numbering", "Character", "O");
  dialogs.renumber(doc);
  auto* seq = frame.findChild<frmRenumber*>()->findChild<QLineEdit*>("txtSeqChr");
  EXPECT_EQ(seq->text(), "O");
}
