#include "document/gui/plain_text_control.h"

#include <Qsci/qsciscintilla.h>

#include <QFont>
#include <QFontDatabase>
#include <algorithm>

#include "document/gui/menu_keys.h"
#include "platform/atomic_file.h"
#include "platform/errors.h"
#include "platform/file_system.h"

namespace lathwick::gui {

using Sci = QsciScintillaBase;

PlainTextControl::PlainTextControl(QWidget* parent) : TextControl(parent), editor_(new QsciScintilla(parent)) {
  editor_->setUtf8(false);  // one byte is one character, as the whole program counts them
  editor_->setEolMode(QsciScintilla::EolWindows);
  editor_->setEolVisibility(false);
  editor_->setWrapMode(QsciScintilla::WrapNone);
  QFont font = QFontDatabase::systemFont(QFontDatabase::FixedFont);
  font.setPointSize(10);
  editor_->setFont(font);
  editor_->setMarginWidth(1, 0);
  editor_->setMarginLineNumbers(0, false);
  editor_->setMarginWidth(0, 0);
  // The horizontal scroll bar follows the longest line shown rather than a fixed width.
  send(Sci::SCI_SETSCROLLWIDTH, 1);
  send(Sci::SCI_SETSCROLLWIDTHTRACKING, 1);

  leaveMenuKeysToTheMenu(*editor_);

  connect(editor_, &QsciScintilla::textChanged, this, [this] {
    if (!loading_) emit textChanged();
  });
  connect(editor_, &QsciScintilla::selectionChanged, this, &TextControl::selectionChanged);
  connect(editor_, &QsciScintilla::cursorPositionChanged, this, [this](int, int) { emit selectionChanged(); });
}

QWidget* PlainTextControl::widget() { return editor_; }

long PlainTextControl::send(unsigned int message, unsigned long wParam, long lParam) const {
  return editor_->SendScintilla(message, wParam, lParam);
}

std::string PlainTextControl::text() const {
  const long length = send(Sci::SCI_GETLENGTH);
  const auto* bytes = reinterpret_cast<const char*>(send(Sci::SCI_GETCHARACTERPOINTER));
  return bytes ? std::string(bytes, static_cast<std::size_t>(length)) : std::string();
}

int PlainTextControl::textLength() const { return static_cast<int>(send(Sci::SCI_GETLENGTH)); }

int PlainTextControl::selStart() const { return static_cast<int>(send(Sci::SCI_GETSELECTIONSTART)); }

int PlainTextControl::selLength() const {
  return static_cast<int>(send(Sci::SCI_GETSELECTIONEND) - send(Sci::SCI_GETSELECTIONSTART));
}

std::string PlainTextControl::selText() const {
  const int start = selStart();
  const int length = selLength();
  if (length <= 0) return {};
  // Straight from the control's buffer: a long program is not copied for every selection.
  const auto* bytes = reinterpret_cast<const char*>(send(Sci::SCI_GETRANGEPOINTER, static_cast<unsigned long>(start), length));
  return bytes ? std::string(bytes, static_cast<std::size_t>(length)) : std::string();
}

void PlainTextControl::setSelection(int start, int length) {
  const int total = textLength();
  start = std::clamp(start, 0, total);
  const int end = std::clamp(start + std::max(length, 0), start, total);
  send(Sci::SCI_SETSEL, static_cast<unsigned long>(start), end);
  emit selectionChanged();
}

void PlainTextControl::replaceSelection(const std::string& bytes) {
  send(Sci::SCI_TARGETFROMSELECTION);
  editor_->SendScintilla(Sci::SCI_REPLACETARGET, static_cast<unsigned long>(bytes.size()), bytes.data());
  const long end = send(Sci::SCI_GETTARGETEND);
  send(Sci::SCI_SETSEL, static_cast<unsigned long>(end), end);
}

int PlainTextControl::lineCount() const { return static_cast<int>(send(Sci::SCI_GETLINECOUNT)); }

int PlainTextControl::lineFromChar(int position) const {
  return static_cast<int>(send(Sci::SCI_LINEFROMPOSITION, static_cast<unsigned long>(std::max(position, 0))));
}

int PlainTextControl::lineIndex(int line) const {
  return static_cast<int>(send(Sci::SCI_POSITIONFROMLINE, static_cast<unsigned long>(std::max(line, 0))));
}

int PlainTextControl::lineLength(int line) const {
  const auto l = static_cast<unsigned long>(std::max(line, 0));
  return static_cast<int>(send(Sci::SCI_GETLINEENDPOSITION, l) - send(Sci::SCI_POSITIONFROMLINE, l));
}

int PlainTextControl::firstVisibleLine() const { return static_cast<int>(send(Sci::SCI_GETFIRSTVISIBLELINE)); }

void PlainTextControl::scrollLines(int lines) { send(Sci::SCI_LINESCROLL, 0, lines); }

void PlainTextControl::loadFile(const std::string& path, TextKind kind) {
  if (kind == TextKind::Rich) throw AppError(err::kBadFileMode, kRichTextNotAvailable);
  const auto bytes = readWholeFile(path);
  if (!bytes) throw makeError(err::kFileNotFound);
  loading_ = true;
  send(Sci::SCI_CLEARALL);
  editor_->SendScintilla(Sci::SCI_APPENDTEXT, static_cast<unsigned long>(bytes->size()), bytes->data());
  send(Sci::SCI_EMPTYUNDOBUFFER);
  send(Sci::SCI_SETSAVEPOINT);
  send(Sci::SCI_GOTOPOS, 0);
  loading_ = false;
  emit selectionChanged();
}

void PlainTextControl::saveFile(const std::string& path, TextKind kind) const {
  if (kind == TextKind::Rich) throw AppError(err::kBadFileMode, kRichTextNotAvailable);
  // The text keeps the line ends it was loaded with; new lines typed here end in CR LF.
  writeFileAtomically(path, text());
}

bool PlainTextControl::canUndo() const { return send(Sci::SCI_CANUNDO) != 0; }
void PlainTextControl::undo() { editor_->undo(); }
void PlainTextControl::cut() { editor_->cut(); }
void PlainTextControl::copy() { editor_->copy(); }
void PlainTextControl::paste() { editor_->paste(); }

void PlainTextControl::deleteForward() {
  send(Sci::SCI_CLEAR);  // the selection, or the character after the caret
}

bool PlainTextControl::overwriteMode() const { return send(Sci::SCI_GETOVERTYPE) != 0; }

}  // namespace lathwick::gui

namespace lathwick::gui {

void PlainTextControl::setColours(std::int32_t background, std::int32_t text) {
  // Scintilla keeps colours in the same red-lowest byte order. Plain text is all in style 0.
  for (unsigned long style : {static_cast<unsigned long>(Sci::STYLE_DEFAULT), 0ul}) {
    send(Sci::SCI_STYLESETBACK, style, background & 0xFFFFFF);
    send(Sci::SCI_STYLESETFORE, style, text & 0xFFFFFF);
  }
  send(Sci::SCI_SETCARETFORE, static_cast<unsigned long>(text & 0xFFFFFF));
}

std::int32_t PlainTextControl::background() const {
  return static_cast<std::int32_t>(send(Sci::SCI_STYLEGETBACK, 0));
}

}  // namespace lathwick::gui
