#pragma once
// The rich text control every document is shown in: a Scintilla editor in single-byte mode (one
// byte is one character; text is Windows-1252 in and out), with the services the editor's line
// model, selection, reload and undo need. Formats come from the rich-text reader, one style per
// distinct format, strikeout as an indicator; an undo of the control's own edits brings their
// formats back too.
#include <Qsci/qsciscintilla.h>

#include <QColor>
#include <QCursor>
#include <QPoint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/rtf_styling.h"
#include "document/style_pieces.h"
#include "document/style_runs.h"
#include "platform/atomic_file.h"
#include "document/style_table.h"

namespace lathwick {

enum class FileKind { PlainText, RichText };

// The ".RTF" rule: a name ending in .RTF (any case) is rich text, anything else plain text.
FileKind fileKindOf(const std::string& fileName);

// The font a style is shown in: its own, or when that is missing and its family is fixed pitch,
// the system's fixed-pitch font.
std::string displayFontName(const StyleFormat& format);

class RichTextBox : public QsciScintilla {
  Q_OBJECT

 public:
  explicit RichTextBox(QWidget* parent = nullptr);
  ~RichTextBox() override;

  // ---- text ------------------------------------------------------------------------------
  std::string textBytes() const;
  std::string_view characterView() const;  // the text in place, valid until the next change
  long textLength() const;
  void setTextBytes(std::string_view text);  // plain text in the default style

  // ---- selection (0-based character offsets) ---------------------------------------------
  long selStart() const;
  void setSelStart(long position);  // collapses the selection there, as the original control did
  long selLength() const;
  void setSelLength(long length);   // from the selection start
  // While held, selection changes leave the view where it is (a macro moving through every
  // line); releasing scrolls the caret into view once.
  void holdCaretScrolling(bool hold);
  std::string selText() const;
  std::string textRange(long start, long length) const;
  void setSelText(std::string_view text);  // replaces the selection, in the format before it
  std::string selRtf() const;              // the selection as rich text
  void setSelRtf(std::string_view rtf);    // replaces the selection with rich text

  // ---- lines ------------------------------------------------------------------------------
  int lineFromChar(long position) const;
  long lineIndex(int line) const;       // first character of a line
  long lineTextLength(int line) const;  // without its line break
  int lineCount() const;                // an empty document has one line
  // firstVisibleLine() is QsciScintilla's own.
  void lineScroll(int lines);           // positive scrolls down
  // The caret's top-left in the text area: the first visible line is at y 0, lines above the
  // view have negative y.
  QPoint caretPixelPosition() const;

  // ---- look -------------------------------------------------------------------------------
  QColor backColor() const { return background_; }
  void setBackColor(const QColor& colour);
  // The default text format (style 0) and the left indent: applied at the next load, and to a
  // plain text document at once.
  void setDefaultFormat(const StyleFormat& format, int indentTwips);
  const StyleTable& styleTable() const { return table_; }
  int indentTwips() const { return indentTwips_; }

  // ---- undo -------------------------------------------------------------------------------
  bool canUndo() const;
  void undo() override;

  // ---- files ------------------------------------------------------------------------------
  // Both throw AppError when the file cannot be read or written. A file that cannot be opened
  // leaves the control as it was; a file is read and shown a piece at a time, so one that fails
  // part-way through leaves what was read.
  // `finalBreak` ends a rich text that comes without a line break at its end (a pass's output
  // has none after its last line), so viewing keeps the break the document had.
  void loadFile(const std::string& path, FileKind kind, std::string_view finalBreak = {});
  // Work files such as the undo snapshot pass Durability::Scratch: they skip the disk flush.
  void saveFile(const std::string& path, FileKind kind, Durability durability = Durability::Durable) const;
  void loadRtf(std::string_view rtf, std::string_view finalBreak = {});
  std::string rtf() const;
  // What a writer on another thread needs to write the document as rich text, when its styles
  // are still those it was loaded with (nullopt otherwise). The text stays where it is only
  // while the document is not changed: the caller makes sure it is not.
  struct UnchangedDocument {
    std::string_view text;
    const StyleRuns* runs;
    std::vector<TextRange> strikeouts;
    StyleTable table;
    int indentTwips;
  };
  std::optional<UnchangedDocument> unchangedDocument() const;
  // The styles of a range, one byte per character, and the struck-out ranges (for tests and the
  // writer).
  std::string stylesOf(long start, long end) const;
  std::vector<TextRange> strikeoutsOf(long start, long end) const;

 signals:
  // The text changed, by an edit or a load. An edit is reported just before it is made, so a
  // slot must neither read the new text nor change the text.
  void textModified();

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  // Over the left indent of the text the pointer is the indent pointer, an arrow pointing up
  // and to the right; elsewhere the control's own.
  void mouseMoveEvent(QMouseEvent* event) override;

 private:
  void moveCaret(long position);
  bool caretScrollingHeld_ = false;
  struct DeletedFormats {
    long position;
    long length;
    std::string styles;
    std::vector<TextRange> strikeouts;  // relative to position
  };
  struct PendingFormat {
    long position;
    long length;
    std::string styles;                 // empty: take the format of the character before
    std::vector<TextRange> strikeouts;  // relative to position
  };

  void onModified(int position, int type, const char* text, int length, int linesAdded, int line,
                  int foldNow, int foldPrev, int token, int annotationLinesAdded);
  void flushPendingFormats();
  void applyPending(const PendingFormat& pending);
  friend class RichTextLoader;  // fills the control as a file is read (rich_text_loading.cpp)
  void resetStyles();
  void defineStyle(int style);
  void defineNewStyles();
  void paintStrikeouts(long offset, const std::vector<TextRange>& ranges);
  void applyIndent();
  unsigned long colourOf(std::uint32_t colour) const;
  std::string styledView(long start, long end, std::string& text, std::vector<TextRange>& strikes) const;
  void writeWholeRtf(const std::function<void(std::string_view)>& sink) const;

  StyleTable table_;
  StyleFormat defaultFormat_;
  int indentTwips_ = 0;         // of the document shown
  int defaultIndentTwips_ = 0;  // for plain text
  QColor background_ = Qt::white;
  std::vector<bool> styleApplied_;
  bool loading_ = false;
  std::vector<DeletedFormats> deleted_;
  std::vector<PendingFormat> pending_;
  // The styles of the last load, as runs, and, while edits stay few, which stretches of the
  // document still have them: saving then reads back only edited stretches.
  bool loadedKnown_ = false;
  StyleRuns loadedRuns_;
  std::vector<TextRange> loadedStrikeouts_;
  StylePieces pieces_;
  bool flushQueued_ = false;
  QCursor indentPointer_;
  bool indentPointerShown_ = false;
};

}  // namespace lathwick
