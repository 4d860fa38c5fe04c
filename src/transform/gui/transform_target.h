#pragma once
// What the transformation dialogs need from the active document, without knowing the editor
// window: its text measures and selection, its line services, the way a pass's output goes
// back in (ReloadDocument and FileUndoable), the status bar and the current scheme. The
// document window implements it; tests use a fake over a temporary folder.
#include <string>

#include "format/pass_frame.h"
#include "transform/find_next.h"

namespace lathwick::gui {

enum class ReloadFormat { Plain, Rich };

class TransformTarget : public transform::SearchTarget {
 public:
  // Text measures and the selection (the selection length is the corrected one).
  virtual long textLength() const = 0;
  virtual long selectionStart() const = 0;
  virtual std::string selectedText() const = 0;
  // 0-based line of a 0-based character position, and the control's line count.
  virtual long lineFromChar(long position) const = 0;
  virtual long lineCount() const = 0;

  // Writes the document as plain text (CR LF) to `path`; false when it could not be written.
  virtual bool savePlainText(const std::string& path) = 0;
  // ReloadDocument: the current contents go to the undo file, `path` is loaded, the caret line
  // and the first visible line stay where they were. False when the snapshot or the load failed.
  virtual bool reloadDocument(const std::string& path, ReloadFormat format) = 0;
  // A pass is about to run: the undo file of the reload that may follow can be written while it
  // runs (the document takes no edits meanwhile). The next reloadDocument puts it in place;
  // endPassSnapshot drops it when no reload came.
  virtual void beginPassSnapshot() {}
  virtual void endPassSnapshot() {}
  virtual void setFileUndoable(bool undoable) = 0;
  // The editing undo (a file undo when FileUndoable is set).
  virtual void undo() = 0;

  // The first panel of the main window's status bar.
  virtual void setStatusText(const std::string& text) = 0;

  // The current scheme's pieces for rich passes, and its comment-start text (blanks trimmed).
  virtual PassFrame passFrame() const = 0;
  virtual std::string commentStartText() const = 0;

  // The work files: the pass reads the input ("TEMP2.TXT") and writes the output ("TEMP3.TXT").
  virtual std::string inputWorkFile() const = 0;
  virtual std::string outputWorkFile() const = 0;
};


}  // namespace lathwick::gui
