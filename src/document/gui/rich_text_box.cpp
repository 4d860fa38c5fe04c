#include "document/gui/rich_text_box.h"

#include <QAccessible>
#include <QAccessibleWidget>
#include <QFontDatabase>
#include <QMetaObject>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPolygon>
#include <algorithm>

#include "document/rtf_reader.h"
#include "document/rtf_writer.h"
#include "platform/atomic_file.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick {
namespace {

constexpr int kStrikeIndicator = 8;  // the first indicator number free for containers
constexpr long kChunk = 1 << 20;     // styles are read back a megabyte at a time
constexpr std::size_t kMaxStylePieces = 20000;  // past this many edits, styles are read back whole

// Stock QScintilla describes the control to assistive technology by counting characters from
// the start of the document on every caret move and edit, which makes typing near the end of a
// long program crawl. The control answers with a plain editable-text description instead.
QAccessibleInterface* accessibleFactory(const QString& className, QObject* object) {
  if (className == QLatin1String("lathwick::RichTextBox") && object && object->isWidgetType())
    return new QAccessibleWidget(static_cast<QWidget*>(object), QAccessible::EditableText);
  return nullptr;
}

QWidget* installAccessibility(QWidget* parent) {
  static const bool installed = [] {
    QAccessible::installFactory(accessibleFactory);
    return true;
  }();
  (void)installed;
  return parent;
}

}  // namespace

namespace {
// The mirror of the usual arrow, its point at the top right: the pointer of a selection bar.
QCursor makeIndentPointer() {
  QPixmap image(16, 16);
  image.fill(Qt::transparent);
  QPainter paint(&image);
  paint.setPen(Qt::white);
  paint.setBrush(Qt::black);
  paint.drawPolygon(QPolygon({{15, 0}, {15, 14}, {11, 10}, {8, 15}, {6, 14}, {9, 9}, {4, 9}}));
  paint.end();
  return QCursor(image, 15, 0);
}
}  // namespace

std::string displayFontName(const StyleFormat& format) {
  // The system would stand in a proportional font for a missing one, which breaks the columns
  // of a program; a font whose family is fixed pitch gets the system's fixed-pitch font instead.
  const QString family = QString::fromLatin1(format.fontName.c_str());
  if (!format.fixedPitch || QFontDatabase::hasFamily(family)) return format.fontName;
  return QFontDatabase::systemFont(QFontDatabase::FixedFont).family().toStdString();
}

FileKind fileKindOf(const std::string& fileName) {
  return endsWithIgnoreCase(fileName, ".RTF") ? FileKind::RichText : FileKind::PlainText;
}

RichTextBox::RichTextBox(QWidget* parent)
    : QsciScintilla(installAccessibility(parent)),
      styleApplied_(StyleTable::kStyleCount, false),
      indentPointer_(makeIndentPointer()) {
  defaultFormat_.fontName = "Courier New";
  defaultFormat_.fixedPitch = true;
  setUtf8(false);
  SendScintilla(SCI_SETLEXER, SCLEX_CONTAINER);
  // Only the notifications before a change: the ones after it make QScintilla recount the text.
  SendScintilla(SCI_SETMODEVENTMASK, SC_MOD_BEFOREINSERT | SC_MOD_BEFOREDELETE);
  SendScintilla(SCI_SETEOLMODE, SC_EOL_CRLF);
  setWrapMode(WrapNone);
  for (int margin = 0; margin < 5; ++margin) SendScintilla(SCI_SETMARGINWIDTHN, margin, 0L);
  SendScintilla(SCI_INDICSETSTYLE, kStrikeIndicator, static_cast<long>(INDIC_STRIKE));
  SendScintilla(SCI_INDICSETFLAGS, kStrikeIndicator, static_cast<long>(SC_INDICFLAG_VALUEBEFORE));
  connect(this, &QsciScintillaBase::SCN_MODIFIED, this, &RichTextBox::onModified);
  resetStyles();
  applyIndent();
}

RichTextBox::~RichTextBox() = default;

// ---- text ---------------------------------------------------------------------------------
long RichTextBox::textLength() const { return SendScintilla(SCI_GETLENGTH); }

std::string RichTextBox::textBytes() const {
  const long length = textLength();
  const auto* p = static_cast<const char*>(SendScintillaPtrResult(SCI_GETCHARACTERPOINTER));
  return p ? std::string(p, static_cast<std::size_t>(length)) : std::string();
}

// ---- selection ----------------------------------------------------------------------------
long RichTextBox::selStart() const { return SendScintilla(SCI_GETSELECTIONSTART); }
long RichTextBox::selLength() const { return SendScintilla(SCI_GETSELECTIONEND) - selStart(); }

void RichTextBox::setSelStart(long position) {
  position = std::clamp(position, 0L, textLength());
  moveCaret(position);
}

void RichTextBox::moveCaret(long position) {
  SendScintilla(caretScrollingHeld_ ? SCI_SETEMPTYSELECTION : SCI_GOTOPOS, position);
}

void RichTextBox::holdCaretScrolling(bool hold) {
  if (caretScrollingHeld_ && !hold) SendScintilla(SCI_SCROLLCARET);
  caretScrollingHeld_ = hold;
}

void RichTextBox::setSelLength(long length) {
  const long start = selStart();
  const long end = std::clamp(start + std::max(0L, length), start, textLength());
  if (caretScrollingHeld_) {
    SendScintilla(SCI_SETANCHOR, start);
    SendScintilla(SCI_SETCURRENTPOS, end);
  } else {
    SendScintilla(SCI_SETSEL, start, end);
  }
}

std::string RichTextBox::textRange(long start, long length) const {
  const long size = textLength();
  start = std::clamp(start, 0L, size);
  length = std::clamp(length, 0L, size - start);
  std::string out(static_cast<std::size_t>(length) + 1, '\0');
  SendScintilla(SCI_GETTEXTRANGE, start, start + length, out.data());
  out.resize(static_cast<std::size_t>(length));
  return out;
}

std::string RichTextBox::selText() const {
  const long start = selStart();
  const long length = selLength();
  std::string out(static_cast<std::size_t>(length) + 1, '\0');
  SendScintilla(SCI_GETTEXTRANGE, start, start + length, out.data());
  out.resize(static_cast<std::size_t>(length));
  return out;
}

void RichTextBox::setSelText(std::string_view text) {
  const long start = selStart();
  SendScintilla(SCI_BEGINUNDOACTION);
  SendScintilla(SCI_TARGETFROMSELECTION);
  SendScintilla(SCI_REPLACETARGET, static_cast<uintptr_t>(text.size()), std::string(text).c_str());
  SendScintilla(SCI_ENDUNDOACTION);
  flushPendingFormats();
  moveCaret(start + static_cast<long>(text.size()));
}

std::string RichTextBox::selRtf() const {
  const long start = selStart();
  const long end = start + selLength();
  std::string text;
  std::vector<TextRange> strikes;
  const std::string styles = styledView(start, end, text, strikes);
  return writeRtf({text, styles, &strikes, indentTwips_}, table_);
}

void RichTextBox::setSelRtf(std::string_view rtf) {
  const RtfDocument doc = readRtf(rtf);
  const DocumentStyling styling = styleDocument(doc, table_);
  defineNewStyles();
  const long start = selStart();
  SendScintilla(SCI_BEGINUNDOACTION);
  SendScintilla(SCI_TARGETFROMSELECTION);
  SendScintilla(SCI_REPLACETARGET, static_cast<uintptr_t>(doc.text.size()), doc.text.c_str());
  SendScintilla(SCI_ENDUNDOACTION);
  flushPendingFormats();
  applyPending({start, static_cast<long>(doc.text.size()), styling.styles, styling.strikeouts});
  moveCaret(start + static_cast<long>(doc.text.size()));
}

// ---- lines --------------------------------------------------------------------------------
int RichTextBox::lineFromChar(long position) const {
  return static_cast<int>(SendScintilla(SCI_LINEFROMPOSITION, std::clamp(position, 0L, textLength())));
}

long RichTextBox::lineIndex(int line) const { return SendScintilla(SCI_POSITIONFROMLINE, line); }

long RichTextBox::lineTextLength(int line) const {
  if (line < 0 || line >= lineCount()) return 0;
  return SendScintilla(SCI_GETLINEENDPOSITION, line) - SendScintilla(SCI_POSITIONFROMLINE, line);
}

int RichTextBox::lineCount() const { return static_cast<int>(SendScintilla(SCI_GETLINECOUNT)); }

void RichTextBox::lineScroll(int lines) { SendScintilla(SCI_LINESCROLL, 0L, static_cast<long>(lines)); }

QPoint RichTextBox::caretPixelPosition() const {
  const long pos = SendScintilla(SCI_GETCURRENTPOS);
  return {static_cast<int>(SendScintilla(SCI_POINTXFROMPOSITION, 0UL, pos)),
          static_cast<int>(SendScintilla(SCI_POINTYFROMPOSITION, 0UL, pos))};
}

// ---- look ---------------------------------------------------------------------------------
unsigned long RichTextBox::colourOf(std::uint32_t colour) const {
  if (colour != kAutoColour) return colour;
  return defaultFormat_.colour != kAutoColour ? defaultFormat_.colour : 0;
}

void RichTextBox::setBackColor(const QColor& colour) {
  background_ = colour;
  const long bgr = colour.red() | (colour.green() << 8) | (colour.blue() << 16);
  SendScintilla(SCI_STYLESETBACK, static_cast<unsigned long>(STYLE_DEFAULT), bgr);
  for (int s : table_.styles()) SendScintilla(SCI_STYLESETBACK, static_cast<unsigned long>(s), bgr);
}

void RichTextBox::setDefaultFormat(const StyleFormat& format, int indentTwips) {
  defaultFormat_ = format;
  defaultIndentTwips_ = indentTwips;
}

void RichTextBox::defineStyle(int style) {
  const StyleFormat& f = style == STYLE_DEFAULT ? defaultFormat_ : table_.format(style);
  const auto s = static_cast<uintptr_t>(style);
  SendScintilla(SCI_STYLESETFONT, s, displayFontName(f).c_str());
  SendScintilla(SCI_STYLESETSIZEFRACTIONAL, s, static_cast<long>(f.halfPoints) * 50);
  SendScintilla(SCI_STYLESETFORE, s, static_cast<long>(colourOf(f.colour)));
  SendScintilla(SCI_STYLESETBACK, s, static_cast<long>(background_.red() | (background_.green() << 8) |
                                                        (background_.blue() << 16)));
  SendScintilla(SCI_STYLESETBOLD, s, static_cast<long>(f.bold));
  SendScintilla(SCI_STYLESETITALIC, s, static_cast<long>(f.italic));
  SendScintilla(SCI_STYLESETUNDERLINE, s, static_cast<long>(f.underline));
  if (style >= 0 && style < StyleTable::kStyleCount) styleApplied_[static_cast<std::size_t>(style)] = true;
}

void RichTextBox::defineNewStyles() {
  for (int s : table_.styles())
    if (!styleApplied_[static_cast<std::size_t>(s)]) defineStyle(s);
}

void RichTextBox::resetStyles() {
  table_ = StyleTable(defaultFormat_);
  styleApplied_.assign(StyleTable::kStyleCount, false);
  defineStyle(STYLE_DEFAULT);
  SendScintilla(SCI_STYLECLEARALL);
  defineStyle(0);
}

void RichTextBox::applyIndent() {
  const long pixels = static_cast<long>(indentTwips_) * logicalDpiX() / 1440;
  SendScintilla(SCI_SETMARGINLEFT, 0UL, pixels);
}

// ---- undo ---------------------------------------------------------------------------------
bool RichTextBox::canUndo() const { return SendScintilla(SCI_CANUNDO) != 0; }

void RichTextBox::undo() {
  SendScintilla(SCI_UNDO);
  flushPendingFormats();
}

void RichTextBox::keyPressEvent(QKeyEvent* event) {
  QsciScintilla::keyPressEvent(event);
  flushPendingFormats();
}

void RichTextBox::mouseMoveEvent(QMouseEvent* event) {
  // Inside the indent means up to and including its last twip.
  const bool inside = event->position().x() * 1440.0 / logicalDpiX() < indentTwips_ + 1;
  if (!inside && indentPointerShown_) viewport()->setCursor(Qt::IBeamCursor);
  QsciScintilla::mouseMoveEvent(event);  // the control's own pointer, wherever it wants one
  if (inside) viewport()->setCursor(indentPointer_);
  indentPointerShown_ = inside;
}

void RichTextBox::inputMethodEvent(QInputMethodEvent* event) {
  QsciScintilla::inputMethodEvent(event);
  flushPendingFormats();
}

// Scintilla's undo gives back deleted text without its styles, and new text has style 0. So
// the formats of deleted text are kept until an undo inserts that text again, and new text takes
// the format of the character before it; both are applied once the insertion is done.
void RichTextBox::onModified(int position, int type, const char*, int length, int, int, int, int, int, int) {
  if (loading_) return;
  if (loadedKnown_) {
    if (type & SC_MOD_BEFOREDELETE) pieces_.erase(static_cast<std::size_t>(position), static_cast<std::size_t>(length));
    if (type & SC_MOD_BEFOREINSERT) pieces_.insert(static_cast<std::size_t>(position), static_cast<std::size_t>(length));
    if (pieces_.pieceCount() > kMaxStylePieces) {
      loadedKnown_ = false;
      loadedRuns_.clear();
      loadedStrikeouts_.clear();
    }
  }
  if ((type & SC_MOD_BEFOREDELETE) && !(type & SC_PERFORMED_UNDO) && length > 0) {
    deleted_.push_back({position, length, stylesOf(position, position + length),
                        strikeoutsOf(position, position + length)});
  }
  if ((type & SC_MOD_BEFOREINSERT) && length > 0) {
    PendingFormat p{position, length, {}, {}};
    if (type & SC_PERFORMED_UNDO) {
      for (auto it = deleted_.rbegin(); it != deleted_.rend(); ++it) {
        if (it->position == position && it->length == length) {
          p.styles = std::move(it->styles);
          p.strikeouts = std::move(it->strikeouts);
          deleted_.erase(std::next(it).base());
          break;
        }
      }
    }
    pending_.push_back(std::move(p));
    if (!flushQueued_) {
      flushQueued_ = true;
      QMetaObject::invokeMethod(this, [this] { flushPendingFormats(); }, Qt::QueuedConnection);
    }
  }
  emit textModified();
}

void RichTextBox::flushPendingFormats() {
  flushQueued_ = false;
  auto pending = std::move(pending_);
  pending_.clear();
  for (const auto& p : pending) applyPending(p);
}

void RichTextBox::applyPending(const PendingFormat& p) {
  const long length = textLength();
  if (p.position < 0 || p.position >= length) return;
  const long count = std::min(p.length, length - p.position);
  SendScintilla(SCI_STARTSTYLING, p.position, 0L);
  SendScintilla(SCI_SETINDICATORCURRENT, kStrikeIndicator);
  SendScintilla(SCI_INDICATORCLEARRANGE, p.position, count);
  if (p.styles.empty()) {
    const long from = p.position > 0 ? p.position - 1 : std::min(p.position + count, length - 1);
    const long style = (from >= p.position && from < p.position + count) ? 0 : SendScintilla(SCI_GETSTYLEAT, from);
    SendScintilla(SCI_SETSTYLING, count, style);
    const long strike = from >= 0 ? SendScintilla(SCI_INDICATORVALUEAT, kStrikeIndicator, from) : 0;
    if (strike != 0 && !(from >= p.position && from < p.position + count)) {
      SendScintilla(SCI_SETINDICATORVALUE, strike);
      SendScintilla(SCI_INDICATORFILLRANGE, p.position, count);
    }
  } else {
    SendScintilla(SCI_SETSTYLINGEX, static_cast<uintptr_t>(count), p.styles.data());
    paintStrikeouts(p.position, p.strikeouts);
  }
}

void RichTextBox::paintStrikeouts(long offset, const std::vector<TextRange>& ranges) {
  SendScintilla(SCI_SETINDICATORCURRENT, kStrikeIndicator);
  const long length = textLength();
  for (const TextRange& r : ranges) {
    const long start = offset + static_cast<long>(r.start);
    const long end = std::min(offset + static_cast<long>(r.end), length);
    if (start >= end) continue;
    const int style = static_cast<int>(SendScintilla(SCI_GETSTYLEAT, start));
    const std::uint32_t colour = table_.isDefined(style) ? table_.format(style).colour : kAutoColour;
    SendScintilla(SCI_SETINDICATORVALUE, static_cast<long>(colourOf(colour) | SC_INDICVALUEBIT));
    SendScintilla(SCI_INDICATORFILLRANGE, start, end - start);
  }
}

std::string RichTextBox::stylesOf(long start, long end) const {
  start = std::clamp(start, 0L, textLength());
  end = std::clamp(end, start, textLength());
  std::string styles(static_cast<std::size_t>(end - start), '\0');
  std::string buffer;
  for (long from = start; from < end; from += kChunk) {
    const long to = std::min(end, from + kChunk);
    buffer.resize(static_cast<std::size_t>(to - from) * 2 + 2);
    SendScintilla(SCI_GETSTYLEDTEXT, from, to, buffer.data());
    char* out = styles.data() + (from - start);
    const char* in = buffer.data() + 1;
    for (long i = 0; i < to - from; ++i) out[i] = in[2 * i];
  }
  return styles;
}

std::vector<TextRange> RichTextBox::strikeoutsOf(long start, long end) const {
  std::vector<TextRange> ranges;
  long pos = std::max(0L, start);
  end = std::min(end, textLength());
  while (pos < end) {
    const long next = SendScintilla(SCI_INDICATOREND, kStrikeIndicator, pos);
    const long stop = (next <= pos) ? end : std::min(next, end);
    if (SendScintilla(SCI_INDICATORVALUEAT, kStrikeIndicator, pos) != 0)
      ranges.push_back({static_cast<std::size_t>(pos - start), static_cast<std::size_t>(stop - start)});
    pos = stop;
  }
  return ranges;
}

// The text, styles and struck-out ranges (relative to start) of a part of the document.
std::string RichTextBox::styledView(long start, long end, std::string& text, std::vector<TextRange>& strikes) const {
  start = std::clamp(start, 0L, textLength());
  end = std::clamp(end, start, textLength());
  text.resize(static_cast<std::size_t>(end - start));
  if (end > start) {
    const auto* p = reinterpret_cast<const char*>(SendScintilla(SCI_GETRANGEPOINTER, start, end - start));
    if (p) std::copy(p, p + (end - start), text.begin());
  }
  strikes = strikeoutsOf(start, end);
  return stylesOf(start, end);
}

}  // namespace lathwick
