#pragma once
// The recovery folder: copies of changed documents that are not saved yet, so that a crash or a
// power cut loses none of them. Each running editor has a session folder of its own,
//   ROOT/session-PID/lock            the identity of the editor (process id, boot, start time)
//   ROOT/session-PID/docN.index      what document N is (recovery_index.h)
//   ROOT/session-PID/docN.txt|.rtf   its text as the window holds it (plain or rich)
// and removes it at a clean exit. A session whose editor no longer runs (its lock stale or gone)
// holds what is to be offered at the next start. Every file is written through a temporary
// file and a rename, flushed to the disk.
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "document/recovery_index.h"
#include "platform/atomic_file.h"
#include "platform/process_identity.h"

namespace lathwick {

// "lathwick/recovery/" under $XDG_STATE_HOME, or under $HOME/.local/state when that is not set
// (an empty or relative value counts as not set), with a trailing separator; empty when neither
// gives an absolute folder.
std::string recoveryRoot(const char* xdgStateHome, const char* home);
std::string recoveryRoot();  // from this process's environment

struct RecoveredDocument {
  RecoveryIndex index;
  std::string indexPath;
  std::string textPath;
  std::string sessionFolder;
};

// The documents left by editors that no longer run, newest first. Session folders of such
// editors that hold no document are removed on the way; sessions of running editors (this one
// too) are left alone.
std::vector<RecoveredDocument> listRecoverable(const std::string& root);

// Throws the copy away (the index first, so a half-done discard is never offered), and the
// session folder with it once it holds no other document. False when it was already gone.
bool discardRecovered(const RecoveredDocument& document);

class RecoverySession {
 public:
  // Makes this editor's session folder under `root`, lock and all (made under a temporary name
  // and renamed into place, so another editor never sees it without its lock). Throws AppError
  // when the folder cannot be made.
  explicit RecoverySession(const std::string& root, const ProcessIdentity& self = currentProcessIdentity());
  RecoverySession(const RecoverySession&) = delete;
  RecoverySession& operator=(const RecoverySession&) = delete;

  const std::string& folder() const { return folder_; }
  std::string indexPathOf(int id) const;
  std::string textPathOf(int id, RecoveredKind kind) const;

  // The copy of document `id`: the text first, then its index (whose text name is filled in).
  // Throws AppError when a file cannot be written. Callable from a worker thread.
  void write(int id, RecoveryIndex index, std::string_view text) const;
  // The same with the text written in pieces by `fill` (a large rich text never whole in memory).
  void write(int id, RecoveryIndex index, const std::function<void(AtomicFileWriter&)>& fill) const;
  // The document was saved, closed or discarded: its copy goes.
  void remove(int id) const;
  bool hasDocuments() const;

  // Takes a document of an ended session over as document `id` of this one (the text is moved,
  // not copied), and removes the old session once nothing is left in it. Nothing when the
  // document is no longer there (another editor took it first).
  std::optional<RecoveredDocument> adopt(const RecoveredDocument& document, int id) const;

  // The clean exit: the lock goes, and the folder with it when no document is left in it. What
  // is left (documents never closed) is offered at the next start.
  void close();

 private:
  std::string root_;
  std::string folder_;
  bool closed_ = false;
};

}  // namespace lathwick
