// Formats in the control: loaded from rich text, saved back, kept by the control's own undo.
#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include "rich_text_box_fixture.h"
#include "support/temp_dir.h"

namespace {

using lathwick::FileKind;
using lathwick::StyleFormat;
using lathwick::TextRange;
using lathwick::test::RichTextBoxTest;

const std::string kColorized = std::string(LATHWICK_TEST_DATA_DIR) + "/rtf/colorized_modes.rtf";

}  // namespace

class RichTextBoxFormats : public RichTextBoxTest {
 protected:
  const StyleFormat& formatAt(long pos) const {
    return box->styleTable().format(static_cast<unsigned char>(box->stylesOf(pos, pos + 1).at(0)));
  }
  long find(const std::string& what) const { return static_cast<long>(box->textBytes().find(what)); }
};

TEST_F(RichTextBoxFormats, RichTextLoadsWithStylesStrikeoutAndIndent) {
  box->loadFile(kColorized, FileKind::RichText);
  EXPECT_EQ(box->textBytes(), "%\r\nN10 G00 X0 Y0\r\nN20 G01 X10.5 Y20 (CUT \\ {A})\r\n\r\n%");
  EXPECT_EQ(box->lineCount(), 5);
  EXPECT_EQ(box->indentTwips(), 400);
  EXPECT_EQ(formatAt(find("N10")).colour, 0x0000FFu);
  EXPECT_TRUE(formatAt(find("N10")).bold);
  EXPECT_EQ(formatAt(find("N20")).fontName, "Arial");
  EXPECT_TRUE(formatAt(find("N20")).italic);
  EXPECT_EQ(formatAt(find("N20")).halfPoints, 24);
  EXPECT_TRUE(formatAt(find(" Y20")).underline);
  const long x = find("X10.5");
  EXPECT_EQ(box->strikeoutsOf(0, box->textLength()), (std::vector<TextRange>{{std::size_t(x), std::size_t(x + 5)}}));
  EXPECT_FALSE(box->canUndo());
}

TEST_F(RichTextBoxFormats, SavedRichTextLoadsBackTheSame) {
  lathwick::test::TempDir dir;
  box->loadFile(kColorized, FileKind::RichText);
  const std::string text = box->textBytes();
  std::vector<StyleFormat> formats;
  for (long i = 0; i < box->textLength(); ++i) formats.push_back(formatAt(i));
  const auto strikes = box->strikeoutsOf(0, box->textLength());
  box->saveFile(dir.file("saved.rtf"), FileKind::RichText);
  // Once edited, the control's own styles are what is saved.
  box->setSelStart(0);
  box->setSelLength(1);
  box->setSelText("");
  box->undo();
  box->saveFile(dir.file("edited.rtf"), FileKind::RichText);
  EXPECT_EQ(dir.read("edited.rtf"), dir.read("saved.rtf"));

  lathwick::RichTextBox other;
  other.loadFile(dir.file("saved.rtf"), FileKind::RichText);
  ASSERT_EQ(other.textBytes(), text);
  EXPECT_EQ(other.strikeoutsOf(0, other.textLength()), strikes);
  EXPECT_EQ(other.indentTwips(), 400);
  for (long i = 0; i < other.textLength(); ++i) {
    if (text[i] == '\r' || text[i] == '\n') continue;
    EXPECT_EQ(other.styleTable().format(static_cast<unsigned char>(other.stylesOf(i, i + 1)[0])), formats[i]) << i;
  }
}

TEST_F(RichTextBoxFormats, UndoOfADeletionBringsItsFormatsBack) {
  box->loadFile(kColorized, FileKind::RichText);
  const std::string before = box->stylesOf(0, box->textLength());
  const auto strikesBefore = box->strikeoutsOf(0, box->textLength());
  box->setSelStart(find("N20"));
  box->setSelLength(14);  // "N20 G01 X10.5 " across three formats and the strikeout
  box->setSelText("");
  ASSERT_TRUE(box->canUndo());
  box->undo();
  EXPECT_EQ(box->textBytes().substr(find("N20"), 3), "N20");
  EXPECT_EQ(box->stylesOf(0, box->textLength()), before);
  EXPECT_EQ(box->strikeoutsOf(0, box->textLength()), strikesBefore);
}

TEST_F(RichTextBoxFormats, TypedTextTakesTheFormatBeforeItAndKeystrokeUndoRestores) {
  box->loadFile(kColorized, FileKind::RichText);
  box->setFocus();
  box->setSelStart(find("N10") + 3);
  QKeyEvent press(QEvent::KeyPress, Qt::Key_5, Qt::NoModifier, "5");
  QApplication::sendEvent(box.get(), &press);
  ASSERT_EQ(box->textBytes().substr(find("N10"), 4), "N105");
  EXPECT_EQ(formatAt(find("N105") + 3), formatAt(find("N105")));

  const std::string styles = box->stylesOf(0, box->textLength());
  box->setSelStart(find("N20"));
  box->setSelLength(3);
  QKeyEvent del(QEvent::KeyPress, Qt::Key_Delete, Qt::NoModifier);
  QApplication::sendEvent(box.get(), &del);
  QKeyEvent undo(QEvent::KeyPress, Qt::Key_Z, Qt::ControlModifier, "z");
  QApplication::sendEvent(box.get(), &undo);
  ASSERT_NE(find("N20"), -1);
  EXPECT_EQ(box->stylesOf(0, box->textLength()), styles);
}

TEST_F(RichTextBoxFormats, SelectedRichTextCarriesItsFormatsToAnotherPlace) {
  box->loadFile(kColorized, FileKind::RichText);
  box->setSelStart(find("N10"));
  box->setSelLength(3);
  const std::string cut = box->selRtf();
  box->setSelStart(box->textLength());
  box->setSelRtf(cut);
  const std::string text = box->textBytes();
  ASSERT_EQ(text.substr(text.size() - 4), "%N10");
  EXPECT_EQ(formatAt(box->textLength() - 1), formatAt(find("N10")));
  EXPECT_TRUE(formatAt(box->textLength() - 1).bold);
}

TEST_F(RichTextBoxFormats, ManyDistinctFormatsFallBackWithoutLosingText) {
  std::string rtf = "{\\rtf1{\\colortbl;";
  for (int i = 0; i < 300; ++i) rtf += "\\red" + std::to_string(i % 256) + "\\green" + std::to_string(i / 256) + "\\blue7;";
  rtf += "}";
  for (int i = 1; i <= 300; ++i) rtf += "\\cf" + std::to_string(i) + " x";
  rtf += "}";
  box->loadRtf(rtf);
  EXPECT_EQ(box->textBytes(), std::string(300, 'x'));
  EXPECT_TRUE(box->styleTable().overflowed());
  const std::string styles = box->stylesOf(0, box->textLength());
  for (char s : styles) {
    const int n = static_cast<unsigned char>(s);
    EXPECT_TRUE(n < 32 || n > 39) << n;
  }
}

TEST_F(RichTextBoxFormats, IndentPointerShowsOverTheLeftIndentOnly) {
  box->loadFile(kColorized, FileKind::RichText);  // indented 400 twips
  const double twip = box->logicalDpiX() / 1440.0;
  QWidget* view = box->viewport();
  const auto moveTo = [view](double x) {
    const QPointF at(x, 10);
    QMouseEvent move(QEvent::MouseMove, at, view->mapToGlobal(at), Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(view, &move);
    return view->cursor().shape();
  };
  EXPECT_EQ(moveTo(400 * twip - 1), Qt::BitmapCursor);
  EXPECT_NE(moveTo(400 * twip + 2), Qt::BitmapCursor);
  EXPECT_NE(moveTo(200), Qt::BitmapCursor);
  EXPECT_EQ(moveTo(0), Qt::BitmapCursor);
}
