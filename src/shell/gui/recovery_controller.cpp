#include "shell/gui/recovery_controller.h"

#include <QCoreApplication>
#include <QMdiSubWindow>
#include <ctime>

#include "document/document_table.h"
#include "document/gui/frm_editor.h"
#include "document/gui/rich_text_box.h"
#include "platform/app_names.h"
#include "platform/errors.h"
#include "platform/gui/dialogs.h"
#include "shell/gui/mdi_form.h"

namespace lathwick::gui {

namespace {
// The name a copy keeps: the file's, unless the document was never saved.
std::string originalPathOf(const DocumentRecord& record) {
  return saveNeedsName(record.fileName) ? std::string() : record.fileName;
}

std::string countText(std::size_t n) { return n == 1 ? "1 document" : std::to_string(n) + " documents"; }
}  // namespace

RecoveryController::RecoveryController(MDIForm1& frame, const std::string& root, RecoveryTiming timing)
    : QObject(&frame), frame_(frame), root_(root), timing_(timing) {
  setObjectName(QStringLiteral("recovery"));
  session_ = std::make_unique<RecoverySession>(root_);
  writer_ = std::make_unique<BackgroundQueue>([this](const std::string& message) {
    QMetaObject::invokeMethod(this, [this, message] { reportFailure(message); }, Qt::QueuedConnection);
  });
  copier_ = new RecoveryCopier(*session_, *writer_, this);
  quiet_.setSingleShot(true);
  connect(&quiet_, &QTimer::timeout, this, [this] {
    firstUncopiedEdit_.invalidate();
    copyChangedDocuments();
  });
  // Now and then every document is looked at, edited or not.
  sweep_.setInterval(timing_.maxDelayMs);
  connect(&sweep_, &QTimer::timeout, this, [this] { copyChangedDocuments(); });
  sweep_.start();
  connect(&frame_, &MDIForm1::documentWindowCreated, this, &RecoveryController::track);
  connect(&frame_, &MDIForm1::documentWritten, this, [this](frmEditor* editor) { dropCopy(editor, false); });
  connect(&frame_, &MDIForm1::documentClosed, this, [this](frmEditor* editor) { dropCopy(editor, true); });
  // Quitting without the close query (the session ending): what is still changed is copied
  // before the windows go, to be offered at the next start.
  connect(qApp, &QCoreApplication::aboutToQuit, this, [this] { copyChangedDocuments(true); });
  for (frmEditor* editor : frame_.editors()) track(editor);
}

RecoveryController::~RecoveryController() {
  writer_.reset();  // runs what is queued and stops
  session_->close();
}

void RecoveryController::track(frmEditor* editor) {
  Tracked& tracked = tracked_[editor];
  tracked.id = nextId_++;
  connect(&editor->rtfTextBox(), &TextControl::textChanged, this, [this, editor] { onEdit(editor); });
  connect(editor, &QObject::destroyed, this, [this, editor] { tracked_.erase(editor); });
}

void RecoveryController::onEdit(frmEditor* editor) {
  auto it = tracked_.find(editor);
  if (it == tracked_.end()) return;
  ++it->second.edits;
  // Each edit moves the copy a quiet period on, unless the first edit not yet copied is already
  // the maximum delay old.
  if (!firstUncopiedEdit_.isValid()) firstUncopiedEdit_.start();
  if (firstUncopiedEdit_.elapsed() < timing_.maxDelayMs)
    quiet_.start(timing_.quietMs);
  else if (!quiet_.isActive())
    quiet_.start(0);
}

void RecoveryController::copyChangedDocuments(bool now) {
  for (auto& [editor, tracked] : tracked_) {
    if (!frame_.documents().valid(editor->tag())) continue;
    const DocumentRecord& record = editor->record();
    // A document marked changed without an edit (its file deleted under it) needs a copy too.
    if (record.changed && (tracked.edits != tracked.copied || !tracked.hasCopy)) {
      copyDocument(*editor, tracked, now);
    } else if (!record.changed && tracked.hasCopy) {
      const int id = tracked.id;
      writer_->post(id, [session = session_.get(), id] { session->remove(id); });
      tracked.hasCopy = false;
    }
  }
  releaseSpareWhenNothingChanged();
}

void RecoveryController::copyDocument(frmEditor& editor, Tracked& tracked, bool now) {
  if (tracked.taking) {
    if (!now) return;
    copier_->cancel(tracked.id);  // quitting: taken at once instead of piece by piece
  }
  const DocumentRecord& record = editor.record();
  RecoveryIndex index;
  index.originalPath = originalPathOf(record);
  index.caption = editor.windowTitle().toLocal8Bit().toStdString();
  index.savedAt = static_cast<std::int64_t>(std::time(nullptr));
  index.lineEnds = record.lineEnds;
  // What Save would write decides the kind: formats are kept only where the file keeps them.
  index.kind = isRichTextName(record.fileName) ? RecoveredKind::Rich : RecoveredKind::Plain;
  const unsigned long long edits = tracked.edits;
  frmEditor* key = &editor;
  tracked.taking = true;
  copier_->take(
      tracked.id, editor.richTextBox(), index,
      [this, key, edits] {
        auto it = tracked_.find(key);
        return it != tracked_.end() && it->second.edits == edits;
      },
      [this, key, edits](bool taken) {
        auto it = tracked_.find(key);
        if (it == tracked_.end()) return;
        it->second.taking = false;
        if (!taken) {
          // Edited while it was being taken: the next quiet period tries again.
          if (it->second.edits != edits) quiet_.start(timing_.quietMs);
          return;
        }
        it->second.copied = edits;
        it->second.hasCopy = true;
      },
      now);
}

void RecoveryController::dropCopy(frmEditor* editor, bool forget) {
  auto it = tracked_.find(editor);
  if (it == tracked_.end()) return;
  const int id = it->second.id;
  copier_->cancel(id);
  writer_->post(id, [session = session_.get(), id] { session->remove(id); });
  it->second.hasCopy = false;
  it->second.copied = it->second.edits;
  if (forget) tracked_.erase(it);
  releaseSpareWhenNothingChanged();
}

void RecoveryController::releaseSpareWhenNothingChanged() {
  for (const auto& [editor, tracked] : tracked_)
    if (tracked.hasCopy || tracked.taking || tracked.edits != tracked.copied) return;
  copier_->releaseSpare();
}

void RecoveryController::flush() {
  for (;;) {
    writer_->flush();
    if (!copier_->busy()) break;
    QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
  }
  writer_->flush();
}

RecoveryController::Offer RecoveryController::ask(const std::vector<RecoveredDocument>& documents) {
  if (chooser_) return chooser_(documents);
  frmRecover dialog(documents, &frame_);
  dialog.exec();
  return {dialog.choice(), dialog.ticked()};
}

std::vector<RecoveredDocument> RecoveryController::offerRecovered() {
  const std::vector<RecoveredDocument> documents = listRecoverable(root_);
  if (documents.empty()) return documents;
  const Offer offer = ask(documents);
  std::vector<const RecoveredDocument*> chosen;
  for (std::size_t i = 0; i < documents.size() && i < offer.ticked.size(); ++i)
    if (offer.ticked[i]) chosen.push_back(&documents[i]);
  if (chosen.empty() || offer.choice == RecoveryChoice::KeepForLater) return documents;
  if (offer.choice == RecoveryChoice::Open) {
    for (const RecoveredDocument* document : chosen) openRecovered(*document);
    return documents;
  }
  const Answer sure = dialogs().message("Discard the recovered copies of " + countText(chosen.size()) +
                                            "?\r\nTheir unsaved changes cannot be brought back.",
                                        "Recovered Documents", Buttons::YesNo, Icon::Exclamation);
  if (sure == Answer::Yes)
    for (const RecoveredDocument* document : chosen) discardRecovered(*document);
  return documents;
}

frmEditor* RecoveryController::openRecovered(const RecoveredDocument& document) {
  const std::string name = recoveredDocumentName(document.index);
  const int id = nextId_++;
  std::optional<RecoveredDocument> adopted;
  try {
    adopted = session_->adopt(document, id);
  } catch (const std::exception& e) {
    dialogs().message(name + ": " + e.what(), kAppTitle, Buttons::Ok, Icon::Information);
    return nullptr;
  }
  if (!adopted) {
    dialogs().message("The recovered copy of " + name + " is no longer there (another Lathwick may have opened it).",
                      kAppTitle, Buttons::Ok, Icon::Information);
    return nullptr;
  }
  frmEditor* editor = frame_.newDocument();
  DocumentRecord& record = editor->record();
  try {
    editor->rtfTextBox().loadFile(adopted->textPath,
                                  adopted->index.kind == RecoveredKind::Rich ? TextKind::Rich : TextKind::Plain);
  } catch (const std::exception& e) {
    // The copy stays in this session (the window closing must not take it): offered next time.
    tracked_.erase(editor);
    record.changed = false;
    if (auto* sub = qobject_cast<QMdiSubWindow*>(editor->parentWidget())) delete sub;
    dialogs().message(name + ": " + e.what(), kAppTitle, Buttons::Ok, Icon::Information);
    return nullptr;
  }
  if (!adopted->index.originalPath.empty()) {
    record.fileName = adopted->index.originalPath;
    editor->setWindowTitle(QString::fromLocal8Bit(captionAfterLoad(record.fileName).c_str()));
  }
  record.lineEnds = adopted->index.lineEnds;
  record.changed = true;  // nothing is written to the file until the user saves
  Tracked& tracked = tracked_[editor];
  tracked.id = id;
  tracked.copied = tracked.edits;
  tracked.hasCopy = true;
  editor->ShowLineNum();
  return editor;
}

void RecoveryController::reportFailure(const std::string& message) {
  if (failureShown_) return;
  failureShown_ = true;
  dialogs().message("The recovery copy of a changed document could not be written (" + message +
                        ").\r\nSave your work: a crash now would lose the changes.",
                    kAppTitle, Buttons::Ok, Icon::Exclamation);
}

RecoveryController* installRecovery(MDIForm1& frame) {
  const std::string root = recoveryRoot();
  try {
    if (root.empty()) throw std::runtime_error("neither XDG_STATE_HOME nor HOME names a folder");
    return new RecoveryController(frame, root);
  } catch (const std::exception& e) {
    dialogs().message("Changed documents cannot be kept for recovery: the folder " + root + " cannot be used (" +
                          e.what() + ").",
                      kAppTitle, Buttons::Ok, Icon::Information);
    return nullptr;
  }
}

}  // namespace lathwick::gui
