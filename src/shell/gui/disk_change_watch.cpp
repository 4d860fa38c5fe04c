#include "shell/gui/disk_change_watch.h"

#include <QEvent>
#include <QGuiApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QPointer>
#include <QTimer>

#include "document/disk_change.h"
#include "document/document_table.h"
#include "document/file_errors.h"
#include "document/gui/frm_editor.h"
#include "document/line_convention.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/gui/dialogs.h"
#include "shell/gui/mdi_form.h"

namespace lathwick::gui {

DiskChangeWatch::DiskChangeWatch(MDIForm1& frame) : QObject(&frame), frame_(frame) {
  setObjectName(QStringLiteral("diskChangeWatch"));
  connect(&frame_, &MDIForm1::documentRead, this, &DiskChangeWatch::remember);
  connect(&frame_, &MDIForm1::documentWritten, this, &DiskChangeWatch::remember);
  connect(&frame_, &MDIForm1::documentClosed, this, [this](frmEditor* editor) { known_.erase(editor); });
  connect(frame_.mdiArea(), &QMdiArea::subWindowActivated, this, [this](QMdiSubWindow* sub) {
    if (auto* editor = sub ? qobject_cast<frmEditor*>(sub->widget()) : nullptr) checkSoon(editor);
  });
  // The main window coming to the front (back from the CAM system, say) looks at every document.
  frame_.installEventFilter(this);
}

void DiskChangeWatch::remember(frmEditor* editor) {
  if (known_.find(editor) == known_.end())
    connect(editor, &QObject::destroyed, this, [this, editor] { known_.erase(editor); });
  const std::string path = editor->record().fileName;
  known_[editor] = {path, fileStampOf(path)};
}

bool DiskChangeWatch::eventFilter(QObject* watched, QEvent* event) {
  if (watched == &frame_ && event->type() == QEvent::WindowActivate) checkSoon(nullptr);
  return QObject::eventFilter(watched, event);
}

void DiskChangeWatch::checkSoon(frmEditor* editor) {
  // After the activation has run its course; a check of every document takes in one of a
  // single document asked for meanwhile.
  if (editor)
    queuedOne_ = editor;
  else
    queuedAll_ = true;
  if (checkQueued_) return;
  checkQueued_ = true;
  QTimer::singleShot(0, this, [this] {
    const bool all = queuedAll_;
    const QPointer<frmEditor> one = queuedOne_;
    checkQueued_ = queuedAll_ = false;
    queuedOne_.clear();
    if (all)
      checkAll();
    else if (one)
      check(*one);
  });
}

void DiskChangeWatch::checkAll() {
  std::vector<frmEditor*> order;
  if (frmEditor* active = frame_.activeEditor()) order.push_back(active);
  for (frmEditor* editor : frame_.editors())
    if (editor != frame_.activeEditor()) order.push_back(editor);
  std::vector<QPointer<frmEditor>> guarded(order.begin(), order.end());
  for (const QPointer<frmEditor>& editor : guarded)
    if (editor) check(*editor);
}

void DiskChangeWatch::check(frmEditor& editor) {
  if (asking_ || frame_.passRunning()) return;
  const std::string path = editor.record().fileName;
  auto it = known_.find(&editor);
  if (it == known_.end() || it->second.path != path) {
    // A document with a file that came in some other way (a recovered copy, say) or under a
    // new name: watched from the file as it is now.
    if (!saveNeedsName(path)) remember(&editor);
    return;
  }
  const FileStamp now = fileStampOf(path);
  const DiskChange change = judgeDiskChange(it->second.stamp, now);
  if (change == DiskChange::None) return;
  it->second.stamp = now;  // asked once, whatever the answer
  asking_ = true;
  QPointer<frmEditor> alive(&editor);
  if (change == DiskChange::Deleted) {
    dialogs().message(deletedNotice(path), kDiskDeletedCaption, Buttons::Ok, Icon::Exclamation);
    if (alive) editor.record().changed = true;  // the text is all that is left of the file
  } else {
    const Answer answer = dialogs().message(reloadQuestion(path, editor.record().changed), kDiskChangeCaption,
                                            Buttons::YesNo, Icon::Question);
    if (alive && answer == Answer::Yes) reload(editor);
  }
  asking_ = false;
}

bool DiskChangeWatch::reload(frmEditor& editor) {
  DocumentRecord& record = editor.record();
  const std::string path = record.fileName;
  const std::string work = frame_.values().Temp2File;
  const FileStamp before = fileStampOf(path);
  const bool rich = isRichTextName(path);
  try {
    LineEnds lineEnds = LineEnds::CrLf;
    if (rich) {
      if (!copyFile(path, work, Durability::Scratch)) throw makeError(err::kPathFileAccessError);
    } else {
      lineEnds = copyAsCrLfTwin(path, work);
    }
    if (!editor.reloadDocument(work, rich ? TextKind::Rich : TextKind::Plain)) return false;
    editor.setFileUndoable(true);  // Undo brings back the text from before the reload
    record.lineEnds = lineEnds;
    record.changed = false;
    known_[&editor] = {path, before};
    return true;
  } catch (const AppError& e) {
    dialogs().message(FileErrorText(e.number(), e.description()), kFileErrorCaption, Buttons::Ok, Icon::Information);
  }
  return false;
}

DiskChangeWatch* installDiskChangeWatch(MDIForm1& frame) { return new DiskChangeWatch(frame); }

}  // namespace lathwick::gui
