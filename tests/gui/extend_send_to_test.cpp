// The send-to list through its dialog's buttons, the "Send To" menus of the document windows,
// and handing a document to a program (a small script that records the words it was given).
#include <QApplication>
#include <QDeadlineTimer>
#include <QLabel>
#include <QMenu>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QThread>
#include <filesystem>

#include "extend/gui/frm_send_to.h"
#include "extend/send_to_list.h"
#include "frame_fixture.h"
#include "screenshot.h"
#include "workspace/gui/menu_set.h"

using namespace lathwick;
using lathwick::test::child;
using lathwick::test::FrameTest;
using lathwick::test::readBytes;

namespace {

class SendToTest : public FrameTest {
 protected:
  SendToTest() {
    // The program records each word it is given on a line of its own.
    recorder = files.write("record.sh", "#!/bin/sh\nprintf '%s\\n' \"$@\" > \"" + files.file("args.txt") + "\"\n");
    std::filesystem::permissions(recorder, std::filesystem::perms::owner_all);
  }

  gui::frmSendTo* openList() {
    trigger("mnuSendto");
    auto* form = frame->findChild<gui::frmSendTo*>("frmSendTo");
    EXPECT_NE(form, nullptr);
    return form;
  }
  // Types into a box as the user would, so the box's change reaches the dialog.
  void type(gui::frmSendTo* form, const char* box, const std::string& text) {
    auto* edit = child<QLineEdit>(form, box);
    edit->selectAll();
    edit->del();
    edit->insert(QString::fromLocal8Bit(text.c_str()));
  }
  void click(gui::frmSendTo* form, const char* name) {
    auto* b = child<QPushButton>(form, name);
    ASSERT_TRUE(b->isEnabled()) << name << " is disabled";
    b->click();
  }
  void choose(gui::frmSendTo* form, int row) {
    auto* list = child<QListWidget>(form, "lstSendTo");
    list->setCurrentRow(row);
    emit list->itemClicked(list->item(row));
  }
  void add(gui::frmSendTo* form, const std::string& title, const std::string& program, const std::string& params) {
    type(form, "txtTitle", title);
    type(form, "txtExePath", program);
    type(form, "txtParameters", params);
    click(form, "cmd1(0)");
  }
  std::vector<std::string> sendMenu(gui::frmEditor* e) {
    std::vector<std::string> captions;
    for (QAction* a : e->menus().menu("mnuSend")->actions()) captions.push_back(a->text().toStdString());
    return captions;
  }
  // The recorded words, once the program has run (it runs on its own, not waited for).
  std::string recorded() {
    const std::string path = files.file("args.txt");
    QDeadlineTimer deadline(5000);
    while (!deadline.hasExpired()) {
      if (std::filesystem::exists(path) && readBytes(path).find('\n') != std::string::npos) break;
      QApplication::processEvents();
      QThread::msleep(20);
    }
    QThread::msleep(50);
    return readBytes(path);
  }
  std::string recorder;
};

TEST_F(SendToTest, TheDialogShowsItsControlsLabelsAndTooltips) {
  start();
  gui::frmSendTo* form = openList();
  EXPECT_EQ(form->windowTitle(), "Send-To List");
  EXPECT_EQ(form->DatName(), app.folder() + "SendTo.dat");
  EXPECT_EQ(child<QLineEdit>(form, "txtTitle")->toolTip(), "Change this field to enable \"Add\" button.");
  EXPECT_EQ(child<QLineEdit>(form, "txtExePath")->toolTip(), "Type the path and file name or use the browse button.");
  EXPECT_EQ(child<QLineEdit>(form, "txtParameters")->toolTip(),
            "See specific program documentation for available parameters.");
  EXPECT_EQ(child<QListWidget>(form, "lstSendTo")->toolTip(), "Click items in list to re-position, edit, add or remove.");
  EXPECT_EQ(child<QPushButton>(form, "cmdupDn(0)")->toolTip(), "Moves selected program up in list.");
  EXPECT_EQ(child<QPushButton>(form, "cmdupDn(1)")->toolTip(), "Moves selected program down in list.");
  EXPECT_EQ(child<QLabel>(form, "lblTitle")->text(), "&Title to be shown in menu.");
  EXPECT_EQ(child<QLabel>(form, "lblExePath")->text(), "Full path and file &name to the external program.");
  EXPECT_EQ(child<QLabel>(form, "lblParameters")->text(), "&Parameters to be passed to the external program.");
  const char* captions[][2] = {{"cmd1(0)", "&Add"}, {"cmd1(1)", "&Remove"}, {"cmd1(2)", "&Save"}, {"cmdBrowse", "&Browse"}};
  for (const auto& [name, caption] : captions) EXPECT_EQ(child<QPushButton>(form, name)->text(), caption);
  for (const char* name : {"cmd1(0)", "cmd1(1)", "cmd1(2)", "cmdupDn(0)", "cmdupDn(1)"})
    EXPECT_FALSE(child<QPushButton>(form, name)->isEnabled()) << name;
  EXPECT_TRUE(dialogs.messages.empty());  // no list yet is no error

  dialogs.files.push_back(recorder);
  click(form, "cmdBrowse");
  ASSERT_EQ(dialogs.requests.size(), 1u);
  EXPECT_EQ(dialogs.requests[0].title, "Find Program File");
  EXPECT_EQ(dialogs.requests[0].filter, "Program File (*.EXE;*.BAT)|*.exe;*.bat|All Files (*.*)|*.*");
  EXPECT_EQ(child<QLineEdit>(form, "txtExePath")->text().toStdString(), recorder);
}

TEST_F(SendToTest, AddRefusesAMissingProgramAndAddAndSaveWriteTheList) {
  start();
  trigger("mnuNew");
  gui::frmSendTo* form = openList();
  type(form, "txtTitle", "DNC");
  EXPECT_TRUE(child<QPushButton>(form, "cmd1(0)")->isEnabled());
  type(form, "txtExePath", files.file("nowhere"));
  click(form, "cmd1(0)");
  EXPECT_EQ(dialogs.messages, (std::vector<test::Message>{{"Specified program does not exist.\r\nPlease check path "
                                                             "and file name.", "Lathwick", gui::Buttons::Ok,
                                                             gui::Icon::Information}}));
  EXPECT_FALSE(std::filesystem::exists(app.file("SendTo.dat")));

  add(form, "DNC", recorder, "");
  EXPECT_FALSE(child<QPushButton>(form, "cmd1(0)")->isEnabled());  // until the next change
  add(form, "Backplot", recorder, "-b");
  EXPECT_EQ(readBytes(app.file("SendTo.dat")),
            "2,0\r\n\"DNC\",\"" + recorder + "\",\"\"\r\n\"Backplot\",\"" + recorder + "\",\"-b\"\r\n");
  type(form, "txtTitle", "DNC");
  EXPECT_FALSE(child<QPushButton>(form, "cmd1(0)")->isEnabled());  // a title in use cannot be added

  choose(form, 1);
  EXPECT_EQ(child<QLineEdit>(form, "txtParameters")->text(), "-b");
  EXPECT_FALSE(child<QPushButton>(form, "cmd1(2)")->isEnabled());
  type(form, "txtParameters", "-c");
  click(form, "cmd1(2)");
  EXPECT_EQ(readBytes(app.file("SendTo.dat")),
            "2,0\r\n\"DNC\",\"" + recorder + "\",\"\"\r\n\"Backplot\",\"" + recorder + "\",\"-c\"\r\n");
  EXPECT_EQ(sendMenu(frame->activeEditor()), (std::vector<std::string>{"DNC", "Backplot"}));
}

TEST_F(SendToTest, MovesReachTheFileAndTheMenusOfEveryWindowOnlyWithSave) {
  app.write("SendTo.dat", "3,12\r\n\"A\",\"" + recorder + "\",\"\"\r\n\"B\",\"" + recorder + "\",\"\"\r\n\"C\",\"" +
                              recorder + "\",\"\"\r\n");
  const std::string before = readBytes(app.file("SendTo.dat"));
  start();
  trigger("mnuNew");
  gui::frmEditor* first = frame->activeEditor();
  trigger("mnuNew");
  EXPECT_EQ(sendMenu(first), (std::vector<std::string>{"A", "B", "C"}));

  gui::frmSendTo* form = openList();
  choose(form, 2);
  EXPECT_FALSE(child<QPushButton>(form, "cmdupDn(1)")->isEnabled());  // already last
  click(form, "cmdupDn(0)");
  click(form, "cmdupDn(0)");
  EXPECT_FALSE(child<QPushButton>(form, "cmdupDn(0)")->isEnabled());
  EXPECT_EQ(child<QListWidget>(form, "lstSendTo")->item(0)->data(Qt::UserRole).toInt(), 2);
  EXPECT_EQ(readBytes(app.file("SendTo.dat")), before);
  form->close();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(readBytes(app.file("SendTo.dat")), before);  // closed without saving: old order

  form = openList();
  choose(form, 2);
  click(form, "cmdupDn(0)");
  click(form, "cmd1(2)");
  EXPECT_EQ(readBytes(app.file("SendTo.dat")), "3,12\r\n\"A\",\"" + recorder + "\",\"\"\r\n\"C\",\"" + recorder +
                                                   "\",\"\"\r\n\"B\",\"" + recorder + "\",\"\"\r\n");
  for (gui::frmEditor* e : frame->editors()) EXPECT_EQ(sendMenu(e), (std::vector<std::string>{"A", "C", "B"}));
  choose(form, 1);
  lathwick::test::saveScreenshot(form, "send_to_list");

  choose(form, 0);
  click(form, "cmd1(1)");
  for (gui::frmEditor* e : frame->editors()) EXPECT_EQ(sendMenu(e), (std::vector<std::string>{"C", "B"}));
}

TEST_F(SendToTest, SendingHandsTheSavedFileToTheProgramAsItsLastWordButNeverAnEmptyDocument) {
  app.write("SendTo.dat", "1,0\r\n\"Record\",\"" + recorder + "\",\"-p 'COM 1' -q\"\r\n");
  const std::string path = files.write("my part.nc", "G00 X0\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  ASSERT_NE(e, nullptr);
  e->rtfTextBox().setSelection(0, e->rtfTextBox().textLength());
  e->rtfTextBox().replaceSelection("");
  e->record().changed = false;
  trigger("mnuShell", 0);
  QThread::msleep(200);
  EXPECT_FALSE(std::filesystem::exists(files.file("args.txt")));
  EXPECT_TRUE(dialogs.messages.empty());

  e->rtfTextBox().replaceSelection("N10 G00 X0\r\n");
  dialogs.answers = {gui::Answer::Cancel};
  trigger("mnuShell", 0);  // the close query comes first; Cancel sends nothing
  EXPECT_EQ(dialogs.messages.size(), 1u);
  QThread::msleep(200);
  EXPECT_FALSE(std::filesystem::exists(files.file("args.txt")));
  dialogs.answers = {gui::Answer::Yes};
  trigger("mnuShell", 0);
  EXPECT_EQ(recorded(), "-p\nCOM 1\n-q\n" + path + "\n");
  EXPECT_EQ(readBytes(path), "N10 G00 X0\r\n");  // what was sent is the file as saved

  std::filesystem::remove(recorder);
  frame->toolButton("Comm")->trigger();  // the first program of the list, which cannot start now
  ASSERT_EQ(dialogs.messages.size(), 3u);
  EXPECT_EQ(dialogs.messages[2], (test::Message{"File not found\r\nUnable to shell this file.\r\nPlease check path "
                                                "and parameters in send-to list.", "Lathwick", gui::Buttons::Ok,
                                                gui::Icon::Information}));
}

TEST_F(SendToTest, TheScriptsSendToSeesProgramAndFileAndAScriptErrorDoesNotStopTheSending) {
  app.write("SendTo.dat", "1,0\r\n\"Record\",\"" + recorder + "\",\"\"\r\n");
  // The hook writes what it was given into the document, then fails.
  app.write("Script/main.vbs",
            "Sub SendTo(Target)\r\n  Text = Target(0) & \"|\" & Target(1)\r\n  x = 1 / 0\r\nEnd Sub\r\n");
  const std::string path = files.write("p.nc", "G00\r\n");
  start();
  gui::frmEditor* e = openFile(path);
  ASSERT_NE(e, nullptr);
  trigger("mnuShell", 0);
  EXPECT_EQ(recorded(), path + "\n");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].caption, "Script Error");
  EXPECT_NE(dialogs.messages[0].text.find("Division by zero"), std::string::npos);
  EXPECT_EQ(e->rtfTextBox().text(), recorder + "|" + path);
}

TEST_F(SendToTest, TheSendMenuSaysEmptyWhileTheListIsEmptyOrUnreadable) {
  app.write("SendTo.dat", "2,0\r\n\"A\",\"/a\",\"\"\r\n");
  start();
  trigger("mnuNew");
  gui::frmEditor* e = frame->activeEditor();
  EXPECT_EQ(sendMenu(e), std::vector<std::string>{"Empty"});
  EXPECT_FALSE(e->menus().action("mnuShell", 0)->isEnabled());
  EXPECT_TRUE(frame->toolButton("Comm")->isEnabled());
  gui::frmSendTo* form = openList();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].text, "Unable to read SendTo dat file. ");
  EXPECT_EQ(child<QListWidget>(form, "lstSendTo")->count(), 0);
  EXPECT_EQ(readBytes(app.file("SendTo.dat")), "2,0\r\n\"A\",\"/a\",\"\"\r\n");
}

}  // namespace
