#include "document/gui/rich_text_control.h"

#include <QColor>
#include <QTimer>

#include "document/gui/menu_keys.h"
#include "document/gui/rich_text_box.h"

namespace lathwick::gui {
namespace {
FileKind kindOf(TextKind kind) { return kind == TextKind::Rich ? FileKind::RichText : FileKind::PlainText; }
}  // namespace

RichTextControl::RichTextControl(QWidget* parent) : TextControl(parent), box_(new RichTextBox(parent)) {
  leaveMenuKeysToTheMenu(*box_);
  connect(box_, &RichTextBox::textModified, this, [this] { textAboutToChange(); });
  connect(box_, &QsciScintilla::selectionChanged, this, &TextControl::selectionChanged);
  connect(box_, &QsciScintilla::cursorPositionChanged, this, [this](int, int) { emit selectionChanged(); });
}

void RichTextControl::textAboutToChange() {
  // The box reports an edit just before it is made (a load is not an edit). The window marks the
  // document changed at once; what depends on the edited text (undo, the selection) is looked
  // at again once the edit is in.
  if (loading_) return;
  emit textChanged();
  if (changeQueued_) return;
  changeQueued_ = true;
  QTimer::singleShot(0, this, [this] {
    changeQueued_ = false;
    emit selectionChanged();
  });
}

QWidget* RichTextControl::widget() { return box_; }
std::string RichTextControl::text() const { return box_->textBytes(); }
int RichTextControl::textLength() const { return static_cast<int>(box_->textLength()); }
int RichTextControl::selStart() const { return static_cast<int>(box_->selStart()); }
int RichTextControl::selLength() const { return static_cast<int>(box_->selLength()); }
std::string RichTextControl::selText() const { return box_->selText(); }
std::string RichTextControl::textRange(int start, int length) const { return box_->textRange(start, length); }

void RichTextControl::holdCaretScrolling(bool hold) { box_->holdCaretScrolling(hold); }

void RichTextControl::setSelection(int start, int length) {
  box_->setSelStart(start);
  box_->setSelLength(length);
  emit selectionChanged();
}

void RichTextControl::replaceSelection(const std::string& bytes) { box_->setSelText(bytes); }
int RichTextControl::lineCount() const { return box_->lineCount(); }
int RichTextControl::lineFromChar(int position) const { return box_->lineFromChar(position); }
int RichTextControl::lineIndex(int line) const { return static_cast<int>(box_->lineIndex(line)); }
int RichTextControl::lineLength(int line) const { return static_cast<int>(box_->lineTextLength(line)); }
int RichTextControl::firstVisibleLine() const { return box_->firstVisibleLine(); }
void RichTextControl::scrollLines(int lines) { box_->lineScroll(lines); }

void RichTextControl::loadFile(const std::string& path, TextKind kind) {
  loading_ = true;
  try {
    box_->loadFile(path, kindOf(kind));
  } catch (...) {
    loading_ = false;
    throw;
  }
  loading_ = false;
  emit selectionChanged();
}

void RichTextControl::saveFile(const std::string& path, TextKind kind, Durability durability) const {
  box_->saveFile(path, kindOf(kind), durability);
}

bool RichTextControl::canUndo() const { return box_->canUndo(); }
void RichTextControl::undo() { box_->undo(); }
void RichTextControl::cut() { box_->cut(); }
void RichTextControl::copy() { box_->copy(); }
void RichTextControl::paste() { box_->paste(); }
void RichTextControl::deleteForward() { box_->SendScintilla(QsciScintillaBase::SCI_CLEAR); }
bool RichTextControl::overwriteMode() const { return box_->SendScintilla(QsciScintillaBase::SCI_GETOVERTYPE) != 0; }

void RichTextControl::setColours(std::int32_t background, std::int32_t) {
  // The text's own colours come with the document; only the page colour is the window's.
  box_->setBackColor(QColor(background & 0xFF, (background >> 8) & 0xFF, (background >> 16) & 0xFF));
}

std::int32_t RichTextControl::background() const {
  const QColor c = box_->backColor();
  return c.red() | (c.green() << 8) | (c.blue() << 16);
}

}  // namespace lathwick::gui
