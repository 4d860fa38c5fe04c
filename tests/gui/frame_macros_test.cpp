// Macros in the editor: main.vbs loaded at start with "Application", LoadDoc after a document
// opens, the Execute pop-up and its captions, Execute File, the Script Error box and Reset Code,
// the reload after saving MAIN.VBS, Operate run unattended, and Esc stopping a runaway macro.
#include <QMenu>
#include <QTimer>

#include "frame_fixture.h"
#include "shell/gui/frame_scripts.h"

using namespace lathwick;
using lathwick::test::FrameTest;

namespace {

const std::string kMain =
    "Sub LoadDoc(f)\r\n  If LCase(Right(f, 3)) = \".nc\" Then SelStart = 0 : SelText = \"(LOADED)\"\r\nEnd Sub\r\n"
    "Sub V_Upper()\r\n  SelStart = 0 : SelLength = Len(Text) : SelText = UCase(SelText)\r\nEnd Sub\r\n"
    "Sub v_test()\r\nEnd Sub\r\n"
    "Sub Helper()\r\nEnd Sub\r\n"
    "Sub V_Bad()\r\n  x = 1 / 0\r\nEnd Sub\r\n"
    "Sub V_Double()\r\n  Operate \"X\", \"*\", \"2\", \"##0.0###\"\r\nEnd Sub\r\n"
    "Sub V_Loop()\r\n  Do\r\n  Loop\r\nEnd Sub\r\n";

struct FrameMacros : FrameTest {
  FrameMacros() { app.write("Script/main.vbs", kMain); }

  // Macro > Execute: the captions the pop-up shows; `choose` (a caption) is clicked.
  std::vector<std::string> execute(const std::string& choose = {}) {
    std::vector<std::string> captions;
    QTimer::singleShot(0, [&] {
      QMenu* menu = frame->scripts()->proceduresMenu();
      for (QAction* a : menu->actions()) {
        captions.push_back(a->text().toStdString());
        if (a->text().toStdString() == choose) a->trigger();
      }
      menu->close();
    });
    trigger("mnuExecuteMacro", 1);
    return captions;
  }
  std::string text() { return frame->activeEditor()->text(); }
  std::string lastMessage() { return dialogs.messages.empty() ? std::string() : dialogs.messages.back().text; }
};

TEST_F(FrameMacros, LoadDocRunsAndExecuteListsAndRunsTheMarkedProcedures) {
  start();
  openFile(files.write("p.nc", "g00 x1\r\n"));
  EXPECT_EQ(text(), "(LOADED)g00 x1\r\n");
  const std::vector<std::string> captions = execute("&Upper");
  EXPECT_EQ(captions, (std::vector<std::string>{"&Upper", "v_test", "&Bad", "&Double", "&Loop"}));
  EXPECT_EQ(text(), "(LOADED)G00 X1\r\n");
  execute("&Double");  // Operate runs its dialog unattended
  EXPECT_EQ(text(), "(LOADED)G00 X2.0\r\n");
  EXPECT_TRUE(dialogs.messages.empty()) << lastMessage();
}

TEST_F(FrameMacros, ScriptErrorBoxThenNothingUntilResetCode) {
  start();
  openFile(files.write("p.nc", "G00 X1\r\n"));
  execute("&Bad");
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_EQ(dialogs.messages[0].caption, "Script Error");
  EXPECT_NE(lastMessage().find(std::string(53, '-') + "\r\nFile =  "), std::string::npos) << lastMessage();
  EXPECT_NE(lastMessage().find("\r\nLine = 12\r\n"), std::string::npos) << lastMessage();
  EXPECT_NE(lastMessage().find("Discription =  Division by zero\r\n"), std::string::npos);
  EXPECT_TRUE(execute().empty());
  trigger("mnuReset");
  EXPECT_EQ(execute().size(), 5u);
  EXPECT_EQ(text(), "(LOADED)G00 X1\r\n");
}

TEST_F(FrameMacros, SyntaxErrorInMainAtStartIsOneBoxAndTheEditorWorks) {
  app.write("Script/main.vbs", "Sub V_A()\r\nIf If\r\nEnd Sub\r\n");
  start();
  ASSERT_EQ(dialogs.messages.size(), 1u);
  EXPECT_NE(lastMessage().find("Discription =  "), std::string::npos);
  openFile(files.write("p.nc", "G00 X1\r\n"));
  EXPECT_EQ(text(), "G00 X1\r\n");
  EXPECT_TRUE(execute().empty());
}

TEST_F(FrameMacros, SavingMainVbsReloadsTheMacros) {
  start();
  openFile(app.file("Script/main.vbs"));
  gui::frmEditor* e = frame->activeEditor();
  e->setSelection(e->textLength(), 0);
  e->replaceSelection("Sub V_New()\r\nEnd Sub\r\n");
  trigger("mnuSave");
  const std::vector<std::string> captions = execute();
  EXPECT_EQ(captions.back(), "&New");
}

// (How fast it stops is measured by bench_macros.)
TEST_F(FrameMacros, EscStopsARunawayMacro) {
  start();
  openFile(files.write("p.nc", "G00\r\n"));
  QTimer::singleShot(200, [&] {
    QKeyEvent esc(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
    QApplication::sendEvent(frame->activeEditor(), &esc);
  });
  execute("&Loop");
  ASSERT_FALSE(dialogs.messages.empty());
  EXPECT_NE(lastMessage().find("Discription =  Script interrupted"), std::string::npos) << lastMessage();
  EXPECT_EQ(text(), "(LOADED)G00\r\n");
}

TEST_F(FrameMacros, ExecuteFileAddsTheChosenScript) {
  start();
  trigger("mnuNew");  // the Macro menu belongs to the document windows
  dialogs.files.push_back(app.write("Script/extra.vbs", "Sub V_Extra()\r\nEnd Sub\r\n"));
  trigger("mnuExecuteMacro", 0);
  const auto listed = execute();
  ASSERT_FALSE(listed.empty());
  EXPECT_EQ(listed.back(), "&Extra");
}

TEST_F(FrameMacros, KeyRecordingWritesSpecialKeysAfterTheTypedText) {
  start();
  openFile(files.write("p.nc", "G00\r\n"));
  trigger("mnuRecordKeys");
  QWidget* text = frame->activeEditor()->rtfTextBox().widget();
  text->setFocus();
  QApplication::processEvents();
  QWidget* target = QApplication::focusWidget();
  ASSERT_NE(target, nullptr);
  lathwick::test::keyClick(target, 'X', Qt::NoModifier, "X");
  lathwick::test::keyClick(target, '1', Qt::NoModifier, "1");
  lathwick::test::keyClick(target, Qt::Key_F1, Qt::ControlModifier);
  lathwick::test::keyClick(target, Qt::Key_End, Qt::ShiftModifier | Qt::ControlModifier);
  EXPECT_EQ(lathwick::test::readBytes(app.file("Script/Keyboard.vbs")), "Key \"X1\"\r\nKey \"^+{END}\"\r\n");
}

TEST_F(FrameMacros, SelTextLeavesTheCaretAfterItAndTheWindowCatchesUpWhenTheMacroEnds) {
  app.write("Script/main.vbs",
            "Sub V_Walk()\r\n  SelStart = Len(Text) - 2 : SelText = \"X\" : SelText = \"Y\"\r\n"
            "  SelStart = SelStart - 2 : SelLength = 2\r\nEnd Sub\r\n");
  start();
  std::string program;
  for (int i = 0; i < 400; ++i) program += "G01 X" + std::to_string(i) + "\r\n";
  gui::frmEditor* e = openFile(files.write("long.nc", program));
  ASSERT_NE(e, nullptr);
  EXPECT_FALSE(frame->menuAction("mnuCut")->isEnabled());
  execute("&Walk");
  EXPECT_EQ(text().substr(text().size() - 8), "X399XY\r\n");
  EXPECT_EQ(e->rtfTextBox().selText(), "XY");
  // Held back while the macro ran: the view shows the caret and Cut follows the selection.
  EXPECT_GT(e->rtfTextBox().firstVisibleLine(), 300);
  EXPECT_TRUE(frame->menuAction("mnuCut")->isEnabled());
}

// The members the other tests do not reach, each run from the Macro menu over a real window.
TEST_F(FrameMacros, TheRestOfTheMembersActOnTheWindowAndItsDocument) {
  app.write("Script/main.vbs",
            "Sub V_Lines()\r\n  SelStart = 12 : t = \"[\" & LineText & \"]\" & LineNumber & \"/\" & LineCount\r\n"
            "  SelStart = 0 : t = t & \"[\" & LineText & \"]\" & LikeString(\"G01\", \"G0?\") & Fmt(1.5, \"0.00\")\r\n"
            "  Text = t\r\nEnd Sub\r\n"
            "Sub V_Spaces()\r\n  RemoveSpaces\r\nEnd Sub\r\n"
            "Sub V_Tools()\r\n  ToolButtonsVisible = False\r\nEnd Sub\r\n"
            "Sub V_Open()\r\n  DlgOpen\r\nEnd Sub\r\n"
            "Sub V_Colour()\r\n  Colorize 1\r\nEnd Sub\r\n");
  if (!useBundledSchemes()) GTEST_SKIP() << "no bundled scheme data file in the build folder";
  start();
  gui::frmEditor* e = openFile(files.write("p.nc", "G00 X1 Y2\r\nG01 Z-1\r\nM30\r\n"));
  ASSERT_NE(e, nullptr);
  execute("&Spaces");
  EXPECT_EQ(text(), "G00X1Y2\r\nG01Z-1\r\nM30\r\n");
  execute("&Colour");
  EXPECT_TRUE(e->FileUndoable());  // a colour run went through the work files and can be undone
  EXPECT_TRUE(dialogs.messages.empty());
  execute("&Lines");  // line 1 starts at 9 now; its LineText begins with the LF before it
  EXPECT_EQ(text(), "[\nG01Z-1]1/4[]31.50");

  execute("&Tools");
  for (const char* key : {"New", "Open", "Help"}) EXPECT_TRUE(frame->toolButton(key)->isVisible()) << key;
  for (const char* key : {"Save", "Print", "Codes", "Renumber"}) EXPECT_FALSE(frame->toolButton(key)->isVisible()) << key;

  dialogs.files.push_back(files.write("second.nc", "N1 G00\r\n"));
  execute("&Open");
  ASSERT_EQ(frame->editors().size(), 2u);
  EXPECT_EQ(frame->activeEditor()->text(), "N1 G00\r\n");
}

}  // namespace
