// Reload from file: the undo snapshot, the view kept, the one-window undo flag and Undo.
#include <QApplication>

#include "document/gui/reload_document.h"
#include "document/rtf_reader.h"
#include "rich_text_box_fixture.h"
#include "support/temp_dir.h"

namespace {

using namespace lathwick;
using lathwick::test::RichTextBoxTest;

const std::string kColorized = std::string(LATHWICK_TEST_DATA_DIR) + "/rtf/colorized_modes.rtf";

class Reload : public RichTextBoxTest {
 protected:
  std::string undoFile() const { return dir.file("UNDO.RTF"); }
  bool reload(const std::string& path, FileKind kind) { return ReloadDocument(*box, path, kind, style, undoFile()); }

  lathwick::test::TempDir dir;
  DefaultTextStyle style;
};

}  // namespace

TEST_F(Reload, KeepsTheTopLineAndTheCaretOffset) {
  box->setTextBytes(numberedLines(600));
  box->setSelStart(box->lineIndex(130) + 3);
  box->lineScroll(120 - box->firstVisibleLine());
  ASSERT_EQ(box->firstVisibleLine(), 120);
  const long caret = box->selStart();
  std::string changed = numberedLines(600);
  changed.replace(0, 3, "O1 ");
  reload(dir.write("TEMP3.TXT", changed), FileKind::PlainText);
  EXPECT_EQ(box->textBytes(), changed);
  EXPECT_EQ(box->firstVisibleLine(), 120);
  EXPECT_EQ(box->selStart(), caret);
}

TEST_F(Reload, CaretAboveTheViewComesBackAtTheTopLine) {
  box->setTextBytes(numberedLines(600));
  box->setSelStart(box->lineIndex(10));
  box->lineScroll(300 - box->firstVisibleLine());
  ASSERT_LT(box->caretPixelPosition().y(), 0);
  reload(dir.write("TEMP3.TXT", numberedLines(600)), FileKind::PlainText);
  EXPECT_EQ(box->firstVisibleLine(), 300);
  EXPECT_EQ(box->selStart(), box->lineIndex(300));
}

TEST_F(Reload, TakesTheUndoSnapshotExceptWhenLoadingTheUndoFile) {
  box->loadFile(kColorized, FileKind::RichText);
  const std::string before = box->textBytes();
  reload(dir.write("TEMP3.TXT", "N1 G00\r\nN2 G01"), FileKind::PlainText);
  EXPECT_EQ(box->textBytes(), "N1 G00\r\nN2 G01");
  const std::string snapshot = dir.read("UNDO.RTF");
  EXPECT_EQ(readRtf(snapshot).text, before);

  reload(undoFile(), FileKind::RichText);
  EXPECT_EQ(dir.read("UNDO.RTF"), snapshot);  // loading the undo file takes no new snapshot
  EXPECT_EQ(box->textBytes(), before);
  EXPECT_EQ(box->strikeoutsOf(0, box->textLength()).size(), 1u);  // formats came back too
}

TEST_F(Reload, StartsFromTheSchemeDefaultStyleAndStaysSilentOnErrors) {
  style.fontName = "Arial";
  style.sizePoints = 14;
  style.foreColour = 0x00FF00;
  style.backColour = 0x102030;
  style.indentTwips = 600;
  box->setTextBytes("keep me");
  EXPECT_TRUE(reload(dir.write("TEMP3.TXT", "N10"), FileKind::PlainText));
  EXPECT_EQ(box->styleTable().defaultFormat().fontName, "Arial");
  EXPECT_EQ(box->styleTable().defaultFormat().halfPoints, 28);
  EXPECT_EQ(box->styleTable().defaultFormat().colour, 0x00FF00u);
  EXPECT_EQ(box->backColor(), QColor(0x30, 0x20, 0x10));
  EXPECT_EQ(box->indentTwips(), 600);
  EXPECT_FALSE(reload(dir.file("missing.txt"), FileKind::PlainText));
  EXPECT_EQ(box->textBytes(), "N10");
}

TEST(FileUndoableRule, OnlyOneWindowOffersUndoFromTheFile) {
  FileUndoGroup group;
  FileUndoable a(group);
  {
    FileUndoable b(group);
    a.set(true);
    EXPECT_TRUE(a.get());
    b.set(true);
    EXPECT_FALSE(a.get());
    EXPECT_TRUE(b.get());
    EXPECT_EQ(group.holder(), &b);
    b.set(false);
    EXPECT_EQ(group.holder(), nullptr);
    b.set(true);
  }
  EXPECT_EQ(group.holder(), nullptr);  // a closed window leaves the group
  a.set(true);
  EXPECT_EQ(group.holder(), &a);
}

TEST_F(Reload, UndoAfterATransformationRestoresTheFileAndKeepsTheChangedFlag) {
  FileUndoGroup group;
  FileUndoable undoable(group);
  bool changed = false;
  box->loadFile(kColorized, FileKind::RichText);
  const std::string original = box->textBytes();
  auto formatsNow = [&] {
    std::vector<StyleFormat> f;
    for (char s : box->stylesOf(0, box->textLength())) f.push_back(box->styleTable().format(static_cast<unsigned char>(s)));
    return f;
  };
  const auto originalFormats = formatsNow();
  // A transformation: reload its output, then claim the undo file.
  reload(dir.write("TEMP3.TXT", "N1\r\nN2"), FileKind::PlainText);
  changed = true;
  undoable.set(true);

  EXPECT_EQ(UndoDocument(*box, undoable, changed, style, undoFile()), UndoOutcome::FromFile);
  EXPECT_EQ(box->textBytes(), original);
  EXPECT_EQ(formatsNow(), originalFormats);
  EXPECT_TRUE(changed);
  EXPECT_FALSE(undoable.get());  // a second Undo is not offered from the file
  EXPECT_FALSE(box->canUndo());
}

TEST_F(Reload, AfterAHandEditUndoUndoesTheEditNotTheTransformation) {
  FileUndoGroup group;
  FileUndoable undoable(group);
  bool changed = false;
  QObject::connect(box.get(), &RichTextBox::textModified, [&] {
    changed = true;
    undoable.set(false);
  });
  box->setTextBytes("before");
  reload(dir.write("TEMP3.TXT", "after"), FileKind::PlainText);
  undoable.set(true);
  box->setSelStart(5);
  box->setSelText("!");
  EXPECT_FALSE(undoable.get());
  EXPECT_EQ(UndoDocument(*box, undoable, changed, style, undoFile()), UndoOutcome::ByControl);
  EXPECT_EQ(box->textBytes(), "after");
}
