#pragma once
// The undo snapshot of a pass, written while the pass runs: the document as it stands
// goes to a temporary beside the undo file on a helper thread, and takes the undo file's place
// only when the run's result is loaded. Meanwhile the document takes no edits, so that what is
// written is what the reload replaces; a run that ends without a result leaves the undo file as
// it was.
#include <atomic>
#include <memory>
#include <string>
#include <thread>

#include "document/gui/rich_text_box.h"
#include "platform/atomic_file.h"

namespace lathwick {

class UndoSnapshot {
 public:
  // Starts writing at once when the document's styles are those it was loaded with; otherwise
  // the document is written by commit().
  UndoSnapshot(RichTextBox& box, std::string undoFilePath);
  ~UndoSnapshot();  // without commit(): stops the writing, the undo file is left as it was
  UndoSnapshot(const UndoSnapshot&) = delete;
  UndoSnapshot& operator=(const UndoSnapshot&) = delete;

  // The document as it was at the start, in the undo file; false when it could not be written.
  // The document takes edits again.
  bool commit();

 private:
  void write(RichTextBox::UnchangedDocument document);
  void end();

  RichTextBox& box_;
  std::string path_;
  bool wasReadOnly_;
  bool ended_ = false;
  std::atomic<bool> stop_{false};
  std::unique_ptr<AtomicFileWriter> written_;  // by the helper: the whole snapshot, not yet in place
  std::thread writer_;
};

}  // namespace lathwick
