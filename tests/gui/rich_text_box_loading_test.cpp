// A long rich text goes into the control piece by piece as it is read, and comes out again from
// the styles kept as runs: the same characters, styles and strikeouts as reading it whole, and,
// once edited, the control's own styles where it was edited.
#include <string>

#include "document/rtf_reader.h"
#include "document/rtf_styling.h"
#include "document/rtf_writer.h"
#include "platform/errors.h"
#include "rich_text_box_fixture.h"
#include "support/temp_dir.h"

namespace {

using namespace lathwick;
using lathwick::test::RichTextBoxTest;

// Lines in three formats, some struck out, long enough to arrive in several pieces.
std::string longRtf() {
  std::string rtf =
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fmodern Courier New;}{\\f1\\fnil Arial;}}\r\n"
      "{\\colortbl;\\red255\\green0\\blue0;\\red0\\green0\\blue255;}\r\n\\pard\\li200 ";
  for (int i = 0; i < 20000; ++i) {
    rtf += i ? "\\par\\li200 " : "\\li200 ";
    rtf += "\\plain\\f0\\fs20\\cf1\\b N" + std::to_string(i) + " \\plain\\f1\\fs24\\cf2\\i ";
    if (i % 9 == 0) rtf += "\\strike ";
    rtf += "G01 X" + std::to_string(i) + " \\plain Y2";
  }
  return rtf + "\\par}\r\n";
}

// The control's default format, as a table of the writer's would start.
StyleTable tableLikeTheBox() {
  StyleFormat f;
  f.fontName = "Courier New";
  f.fixedPitch = true;
  return StyleTable(f);
}

}  // namespace

TEST_F(RichTextBoxTest, ALongFileLoadsPieceByPieceWithEveryStyleAndSavesAsReadWhole) {
  test::TempDir dir;
  const std::string rtf = longRtf();
  const std::string path = dir.write("long.rtf", rtf);
  box->loadFile(path, FileKind::RichText);

  const RtfDocument doc = readRtf(rtf);
  StyleTable table = tableLikeTheBox();
  const DocumentStyling styling = styleDocument(doc, table);
  ASSERT_GT(doc.text.size(), 400000u);  // several pieces
  ASSERT_EQ(box->textBytes(), doc.text);
  EXPECT_EQ(box->stylesOf(0, box->textLength()), styling.styles);
  EXPECT_EQ(box->strikeoutsOf(0, box->textLength()), styling.strikeouts);
  EXPECT_EQ(box->indentTwips(), 200);
  EXPECT_FALSE(box->canUndo());

  box->saveFile(dir.file("saved.rtf"), FileKind::RichText);
  EXPECT_EQ(dir.read("saved.rtf"), writeRtf({doc.text, styling.styles, &styling.strikeouts, 200}, table));
}

TEST_F(RichTextBoxTest, AnEditedDocumentSavesTheStylesItShows) {
  test::TempDir dir;
  box->loadFile(dir.write("long.rtf", longRtf()), FileKind::RichText);
  // Typed text in the middle and near the end, a deletion across formats.
  box->setSelStart(box->lineIndex(10000) + 3);
  box->setSelText("777");
  box->setSelStart(box->lineIndex(19990));
  box->setSelLength(40);
  box->setSelText("");
  box->setSelStart(box->textLength() - 1);
  box->setSelText("!");
  const long length = box->textLength();
  const std::string styles = box->stylesOf(0, length);
  const auto strikes = box->strikeoutsOf(0, length);
  box->saveFile(dir.file("edited.rtf"), FileKind::RichText);
  EXPECT_EQ(dir.read("edited.rtf"),
            writeRtf({box->textBytes(), styles, &strikes, box->indentTwips()}, box->styleTable()));
}

TEST_F(RichTextBoxTest, AFileThatCannotBeOpenedLeavesTheControlAsItWas) {
  box->setTextBytes("N10 G01 X1");
  EXPECT_THROW(box->loadFile("/nonexistent/folder/x.rtf", FileKind::RichText), AppError);
  EXPECT_THROW(box->loadFile("/nonexistent/folder/x.nc", FileKind::PlainText), AppError);
  EXPECT_EQ(box->textBytes(), "N10 G01 X1");
}
