#pragma once
// The one door through which a whole-document result enters a window: reload from a file, with
// the undo snapshot taken first and the view kept; the flag that says which window may undo from
// the single undo file; and the Undo command that uses it.
#include <cstdint>
#include <string>
#include <vector>

#include "document/gui/rich_text_box.h"

namespace lathwick {

// The scheme's default text style ("All Other Text") that a reload starts from.
struct DefaultTextStyle {
  std::string fontName = "Courier New";
  int sizePoints = 10;
  std::uint32_t foreColour = 0;         // 0x00BBGGRR
  std::uint32_t backColour = 0xFFFFFF;  // the scheme's background
  bool bold = false;
  bool italic = false;
  bool underline = false;
  bool fixedPitch = true;  // the scheme's family keyword is "fmodern"
  int indentTwips = 0;
};

// Loads `path` into the control as rich or plain text. Unless `path` is the undo file itself,
// the present contents are first saved as rich text to the undo file. The caret offset (or, when
// the caret was above the view, the start of the first visible line) and the first visible line
// are restored afterwards. Errors stay silent, as they always have: the control is left as far
// as the load got, and the result says whether everything worked. A snapshot written while the
// result was being made (by a pass) is put in place instead of saving the contents then.
class UndoSnapshot;
bool ReloadDocument(RichTextBox& box, const std::string& path, FileKind kind, const DefaultTextStyle& style,
                    const std::string& undoFilePath, UndoSnapshot* snapshot = nullptr);

class FileUndoGroup;

// One window's claim on the undo file. There is one undo file for the whole application, so
// making one window file-undoable clears the flag of every other window of the group.
class FileUndoable {
 public:
  explicit FileUndoable(FileUndoGroup& group);
  ~FileUndoable();
  FileUndoable(const FileUndoable&) = delete;
  FileUndoable& operator=(const FileUndoable&) = delete;

  bool get() const { return value_; }
  void set(bool value);

 private:
  friend class FileUndoGroup;
  FileUndoGroup& group_;
  bool value_ = false;
};

// The open document windows that share the undo file (the application holds one).
class FileUndoGroup {
 public:
  FileUndoGroup() = default;
  FileUndoGroup(const FileUndoGroup&) = delete;
  FileUndoGroup& operator=(const FileUndoGroup&) = delete;
  // The member that may undo from the file, or nullptr.
  const FileUndoable* holder() const;

 private:
  friend class FileUndoable;
  std::vector<FileUndoable*> members_;
};

enum class UndoOutcome { FromFile, ByControl };

// The Undo command of a document window. A file-undoable window reloads the undo file (no new
// snapshot), keeps its changed flag as it was and stops being file-undoable: the caller then
// disables Undo. Otherwise the control undoes its own last edit.
UndoOutcome UndoDocument(RichTextBox& box, FileUndoable& undoable, bool& changedFlag, const DefaultTextStyle& style,
                         const std::string& undoFilePath);

}  // namespace lathwick
