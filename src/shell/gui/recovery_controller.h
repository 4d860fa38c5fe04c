#pragma once
// Keeps a copy of every changed document in this editor's recovery session (document/
// recovery_store.h) so that a crash or a power cut loses none of them, and offers what an
// editor that ended without closing its documents left behind.
//
// A copy is made a quiet period after the last edit (and at the latest a maximum delay after the
// first edit not yet copied, for someone who never pauses; and every maximum delay for a document
// marked changed without an edit): the text is taken on this thread,
// once per quiet period, without holding it long (recovery_copier.h), and written and flushed to
// the disk on a worker thread. A document
// that is saved, closed or no longer changed loses its copy. Destroying the controller is the
// clean exit: the session's lock goes, and with it the session when no copy is left.
#include <QElapsedTimer>
#include <QObject>
#include <QTimer>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "document/recovery_store.h"
#include "platform/background_queue.h"
#include "shell/gui/frm_recover.h"
#include "shell/gui/recovery_copier.h"

namespace lathwick::gui {

class MDIForm1;
class frmEditor;

struct RecoveryTiming {
  int quietMs = 2000;
  int maxDelayMs = 30000;
};

class RecoveryController : public QObject {
  Q_OBJECT
 public:
  // What the offer's dialog answered: the choice and which documents were ticked.
  struct Offer {
    RecoveryChoice choice = RecoveryChoice::KeepForLater;
    std::vector<bool> ticked;
  };
  using Chooser = std::function<Offer(const std::vector<RecoveredDocument>&)>;

  // Opens the session under `root`; throws AppError when its folder cannot be made.
  RecoveryController(MDIForm1& frame, const std::string& root, RecoveryTiming timing = {});
  ~RecoveryController() override;

  // At start-up: offers the documents of editors that ended without closing them (nothing is
  // shown when there are none). Returns what was offered.
  std::vector<RecoveredDocument> offerRecovered();
  // Opens one recovered document as a changed, unsaved document under its own file name, its
  // copy now this session's. nullptr (after saying why) when it cannot be opened.
  frmEditor* openRecovered(const RecoveredDocument& document);

  // Copies every changed document edited since its last copy and drops the copies of documents
  // no longer changed; the quiet-period timer calls it. With `now` large documents are taken at
  // once rather than over several turns of the event loop (when the program is quitting).
  void copyChangedDocuments(bool now = false);
  // Waits until every copy asked for so far is on the disk (letting the event loop run while a
  // large document is still being taken).
  void flush();
  // Nothing being taken or written.
  bool idle() const { return !copier_->busy() && writer_->pending() == 0; }

  const RecoverySession& session() const { return *session_; }
  // Tests answer the offer without the dialog.
  void setChooser(Chooser chooser) { chooser_ = std::move(chooser); }

 private:
  struct Tracked {
    int id = 0;
    unsigned long long edits = 0;   // edits seen
    unsigned long long copied = 0;  // edits the last copy holds
    bool hasCopy = false;
    bool taking = false;            // its text is being taken
  };

  void track(frmEditor* editor);
  void onEdit(frmEditor* editor);
  void dropCopy(frmEditor* editor, bool forget);
  void copyDocument(frmEditor& editor, Tracked& tracked, bool now);
  void releaseSpareWhenNothingChanged();
  Offer ask(const std::vector<RecoveredDocument>& documents);
  void reportFailure(const std::string& message);

  MDIForm1& frame_;
  std::string root_;
  RecoveryTiming timing_;
  std::unique_ptr<RecoverySession> session_;
  std::unique_ptr<BackgroundQueue> writer_;  // after the session: its jobs use the session
  RecoveryCopier* copier_ = nullptr;         // a child of this controller
  std::map<frmEditor*, Tracked> tracked_;
  int nextId_ = 1;
  QTimer quiet_;
  QTimer sweep_;
  QElapsedTimer firstUncopiedEdit_;
  Chooser chooser_;
  bool failureShown_ = false;
};

// Installs the controller on the frame under recoveryRoot(); when no recovery folder can be made
// the user is told once and the editor runs without copies (nullptr).
RecoveryController* installRecovery(MDIForm1& frame);

}  // namespace lathwick::gui
