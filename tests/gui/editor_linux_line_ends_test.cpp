// Programs as Linux keeps them (LF line ends) in the editor, and viewing that changes nothing:
// an LF program opens as lines and colours without a word, Save writes LF back; a colour view
// keeps the document's final line break; the keys come back to the document after a pass with
// the progress form; new windows open inside the frame.
#include <QApplication>
#include <QFontInfo>

#include "document/document_table.h"
#include "document/line_convention.h"
#include "frame_fixture.h"
#include "document/gui/rich_text_box.h"
#include "workspace/gui/menu_set.h"

using namespace lathwick;
using lathwick::test::FrameTest;
using lathwick::test::readBytes;

namespace {
class LinuxLineEndsTest : public FrameTest {
 protected:
  void SetUp() override {
    if (!useBundledSchemes()) GTEST_SKIP() << "no bundled scheme data file in the build folder";
  }
  // How many different styles the first characters of the lines have.
  static std::size_t lineStyleCount(gui::frmEditor* e) {
    std::string styles;
    for (int line = 0; line < e->LineCount(); ++line) {
      if (e->rtfTextBox().lineLength(line) == 0) continue;
      const long at = e->rtfTextBox().lineIndex(line);
      const char s = e->richTextBox().stylesOf(at, at + 1).at(0);
      if (styles.find(s) == std::string::npos) styles += s;
    }
    return styles.size();
  }
  void save() {
    trigger("mnuSave");
    QApplication::processEvents();
  }
};

const std::string kLinuxProgram = "%\nO1000 (BRACKET)\nG90 G21\nG00 X0 Y0\nG01 X10.5 F100\nM30\n%\n";
}  // namespace

TEST_F(LinuxLineEndsTest, AnLfProgramOpensColouredWithAutoFormatAndSavesBackWithLf) {
  start();
  trigger("mnuAuto");  // Auto Format on
  const std::string path = files.write("bracket.nc", kLinuxProgram);
  gui::frmEditor* e = openFile(path);
  ASSERT_NE(e, nullptr);
  EXPECT_TRUE(dialogs.messages.empty()) << dialogs.messages[0].text;
  EXPECT_EQ(e->LineCount(), 8);  // seven lines and the empty one after the last break
  EXPECT_EQ(e->rtfTextBox().text(), linuxToCrLf(kLinuxProgram));
  EXPECT_GT(lineStyleCount(e), 1u);  // coloured by modes
  EXPECT_TRUE(e->FileUndoable());
  EXPECT_EQ(e->record().lineEnds, LineEnds::Lf);
  save();
  EXPECT_EQ(readBytes(path), kLinuxProgram);

  // A pass changes what it changes, and the file keeps its line ends.
  trigger("mnuRemove");
  save();
  EXPECT_EQ(readBytes(path), "%\nO1000(BRACKET)\nG90G21\nG00X0Y0\nG01X10.5F100\nM30\n%\n");
  trigger("mnuAddSpaces");
  trigger("mnuModal", 1);
  save();
  EXPECT_EQ(readBytes(path).find('\r'), std::string::npos);
  EXPECT_TRUE(dialogs.messages.empty());

  // A new document is CR LF, even in the slot an LF document had.
  trigger("mnuClose");
  trigger("mnuNew");
  EXPECT_EQ(frame->activeEditor()->record().lineEnds, LineEnds::CrLf);
}

TEST_F(LinuxLineEndsTest, AColourViewThenSaveLeavesTheFileByteIdentical) {
  start();
  const std::string crlf = "%\r\nO1000\r\nG00 X0 Y0 (START)\r\nG01 X10.5 F100\r\nM30\r\n%\r\n";
  for (const std::string& bytes : {crlf, kLinuxProgram, std::string("G00 X1\r\nG01 X2")}) {
    const std::string path = files.write("view.nc", bytes);
    ASSERT_NE(openFile(path), nullptr);
    for (int view : {0, 1, 2}) {
      SCOPED_TRACE("view " + std::to_string(view) + " of " + bytes);
      trigger("mnuModal", view);
      save();
      EXPECT_EQ(readBytes(path), bytes);
    }
    // The undo snapshot comes back with the break too.
    trigger("mnuModal", 0);
    trigger("mnuUndo");
    save();
    EXPECT_EQ(readBytes(path), bytes);
    trigger("mnuClose");
  }
}

TEST_F(LinuxLineEndsTest, TheKeysComeBackToTheDocumentAfterAPassWithTheProgressForm) {
  start();
  std::string program;
  for (int i = 0; i < 400; ++i) program += "N" + std::to_string(i) + " G01 X" + std::to_string(i) + "\n";
  gui::frmEditor* e = openFile(files.write("long.nc", program));
  frame->activateWindow();
  e->rtfTextBox().widget()->setFocus();
  QApplication::processEvents();
  if (QApplication::focusWidget() != e->rtfTextBox().widget()) GTEST_SKIP() << "no keyboard focus here";
  trigger("mnuModal", 0);  // over 200 lines: the progress form comes and goes
  EXPECT_EQ(QApplication::focusWidget(), e->rtfTextBox().widget());
}

TEST_F(LinuxLineEndsTest, NewWindowsOpenInsideTheWorkingAreaAndNameTheirFullPath) {
  start();
  frame->resize(700, 500);
  QApplication::processEvents();
  const std::string folder = files.folder() + "customer_programs/2026/";
  std::filesystem::create_directories(folder);
  for (int i = 0; i < 8; ++i) {
    const std::string path = folder + "bracket_roughing_operation_" + std::to_string(i) + ".nc";
    files.write("customer_programs/2026/" + std::filesystem::path(path).filename().string(), "G00 X1\n");
    gui::frmEditor* e = openFile(path);
    ASSERT_NE(e, nullptr);
    auto* sub = qobject_cast<QMdiSubWindow*>(e->parentWidget());
    ASSERT_NE(sub, nullptr);
    const QRect room(QPoint(0, 0), sub->mdiArea()->viewport()->size());
    EXPECT_TRUE(room.contains(sub->geometry())) << i;
    // The caption keeps the file name; the tooltip tells the whole path.
    EXPECT_NE(caption(e).find("bracket_roughing_operation_" + std::to_string(i) + ".nc"), std::string::npos);
    EXPECT_EQ(sub->toolTip().toStdString(), path);
  }
  EXPECT_EQ(frame->frameMenus().action("mnuRecentFile", 1)->toolTip().toStdString(),
            folder + "bracket_roughing_operation_7.nc");
}

TEST(FontStandIn, AMissingFixedPitchFontBecomesAFixedPitchFont) {
  test::testApp();
  StyleFormat format;
  format.fontName = "No Such Font Lathwick";
  format.fixedPitch = true;
  const std::string shown = displayFontName(format);
  EXPECT_NE(shown, format.fontName);
  EXPECT_TRUE(QFontInfo(QFont(QString::fromStdString(shown))).fixedPitch()) << shown;
  format.fixedPitch = false;  // nothing asked for columns: the system's own choice
  EXPECT_EQ(displayFontName(format), format.fontName);
}
