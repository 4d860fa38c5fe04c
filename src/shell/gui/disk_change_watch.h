#pragma once
// Notices a document's file changed or deleted by another program (a CAM system posting the
// program again) when the main window or a document window is activated. A changed file brings
// the question whether to reload it, naming the file and saying when the document has unsaved
// changes; Yes reloads it as a whole-document reload that Undo can take back. A deleted file is
// reported once and the document kept, marked changed. The same change is never asked about
// twice: the file as it was when asked is remembered, as it is after every read and save.
#include <QObject>
#include <QPointer>
#include <map>
#include <string>

#include "platform/file_stamp.h"

namespace lathwick::gui {

class MDIForm1;
class frmEditor;

class DiskChangeWatch : public QObject {
  Q_OBJECT
 public:
  explicit DiskChangeWatch(MDIForm1& frame);

  // Looks at every document's file, the active document's first.
  void checkAll();
  // Looks at one document's file (documents never saved to a file have none). A document the
  // watch has not seen read or saved is watched from its file as it is at this first look.
  void check(frmEditor& editor);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void remember(frmEditor* editor);
  void checkSoon(frmEditor* editor);  // nullptr: every document
  bool reload(frmEditor& editor);

  // The file as last known, and which file: a document given another name (Save As Rich Text
  // renames it even when its dialog is cancelled) is watched afresh under the new one.
  struct Known {
    std::string path;
    FileStamp stamp;
  };

  MDIForm1& frame_;
  std::map<frmEditor*, Known> known_;
  bool asking_ = false;
  bool checkQueued_ = false;
  bool queuedAll_ = false;
  QPointer<frmEditor> queuedOne_;
};

DiskChangeWatch* installDiskChangeWatch(MDIForm1& frame);

}  // namespace lathwick::gui
