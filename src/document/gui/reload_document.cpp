#include "document/gui/reload_document.h"

#include <algorithm>

#include "document/gui/undo_snapshot.h"
#include "platform/file_system.h"

namespace lathwick {
namespace {

constexpr int kMaxScrollTries = 501;

void applyDefaultStyle(RichTextBox& box, const DefaultTextStyle& style) {
  StyleFormat format;
  format.fontName = style.fontName;
  format.halfPoints = style.sizePoints * 2;
  format.colour = style.foreColour;
  format.bold = style.bold;
  format.italic = style.italic;
  format.underline = style.underline;
  format.fixedPitch = style.fixedPitch;
  box.setDefaultFormat(format, style.indentTwips);
  const std::uint32_t back = style.backColour;
  box.setBackColor(QColor(back & 0xFF, (back >> 8) & 0xFF, (back >> 16) & 0xFF));
}

// The line break the document ends with ("" when none): a pass's rich output ends without one,
// and viewing must not take it away.
std::string lineBreakAtEnd(const RichTextBox& box) {
  const std::string_view text = box.characterView();
  if (text.size() >= 2 && text.substr(text.size() - 2) == "\r\n") return "\r\n";
  if (!text.empty() && (text.back() == '\r' || text.back() == '\n')) return std::string(1, text.back());
  return {};
}

}  // namespace

bool ReloadDocument(RichTextBox& box, const std::string& path, FileKind kind, const DefaultTextStyle& style,
                    const std::string& undoFilePath, UndoSnapshot* snapshot) {
  bool ok = true;
  const QPoint caret = box.caretPixelPosition();
  const bool isUndoFile = nativePath(path) == nativePath(undoFilePath);
  if (snapshot && !isUndoFile) {
    ok = snapshot->commit();
  } else if (!isUndoFile) {
    try {
      box.saveFile(undoFilePath, FileKind::RichText, Durability::Scratch);
    } catch (...) {
      ok = false;
    }
  }
  const std::string finalBreak = isUndoFile ? std::string() : lineBreakAtEnd(box);
  const int firstVisible = box.firstVisibleLine();
  const long restoreAt = caret.y() < 0 ? box.lineIndex(firstVisible) : box.selStart();

  // No painting while the text is replaced and the view put back.
  const bool updates = box.updatesEnabled();
  box.setUpdatesEnabled(false);
  try {
    applyDefaultStyle(box, style);
    box.loadFile(path, kind, finalBreak);
  } catch (...) {
    ok = false;
  }
  box.setSelStart(std::min(restoreAt, box.textLength()));
  box.lineScroll(firstVisible);
  for (int i = 0; i < kMaxScrollTries; ++i) {
    const int now = box.firstVisibleLine();
    if (now == firstVisible) break;
    box.lineScroll(firstVisible - now);
  }
  box.setUpdatesEnabled(updates);
  return ok;
}

FileUndoable::FileUndoable(FileUndoGroup& group) : group_(group) { group_.members_.push_back(this); }

FileUndoable::~FileUndoable() {
  auto& m = group_.members_;
  m.erase(std::remove(m.begin(), m.end(), this), m.end());
}

void FileUndoable::set(bool value) {
  if (value)
    for (FileUndoable* member : group_.members_) member->value_ = false;
  value_ = value;
}

const FileUndoable* FileUndoGroup::holder() const {
  for (const FileUndoable* member : members_)
    if (member->value_) return member;
  return nullptr;
}

UndoOutcome UndoDocument(RichTextBox& box, FileUndoable& undoable, bool& changedFlag, const DefaultTextStyle& style,
                         const std::string& undoFilePath) {
  if (!undoable.get()) {
    box.undo();
    return UndoOutcome::ByControl;
  }
  const bool changed = changedFlag;
  ReloadDocument(box, undoFilePath, FileKind::RichText, style, undoFilePath);
  changedFlag = changed;
  undoable.set(false);  // the reload changed the text, and a second undo is not offered
  return UndoOutcome::FromFile;
}

}  // namespace lathwick
