// MDIForm1's document side: new documents, loading, saving, the close query and the recent-file
// menus.
#include <QAction>
#include <QApplication>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QStyle>
#include <algorithm>
#include <cctype>
#include <fstream>

#include "document/document_table.h"
#include "document/file_errors.h"
#include "shell/gui/frame_look.h"
#include "document/gui/frm_editor.h"
#include "document/paths.h"
#include "document/work_copy.h"
#include "platform/atomic_file.h"
#include "platform/bytes.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/gui/dialogs.h"
#include "platform/app_folder.h"
#include "shell/gui/mdi_form.h"
#include "shell/gui/frame_scripts.h"
#include "workspace/gui/menu_set.h"
#include "workspace/history.h"

namespace lathwick::gui {
namespace {
QString q(const std::string& s) { return QString::fromLocal8Bit(s.c_str()); }

// Opens the file for reading and closes it again, so a missing or unreadable file ends the load
// with the runtime's own error.
void checkReadable(const std::string& name) {
  if (isDirectory(name)) throw makeError(err::kPathFileAccessError);
  if (!isRegularFile(name)) throw makeError(err::kFileNotFound);
  std::ifstream probe(nativePath(name), std::ios::binary);
  if (!probe) throw makeError(err::kPermissionDenied);
}

class HourGlass {
 public:
  HourGlass() { QApplication::setOverrideCursor(Qt::WaitCursor); }
  ~HourGlass() { QApplication::restoreOverrideCursor(); }
};
}  // namespace

frmEditor* MDIForm1::createWindow(int index) {
  auto* editor = new frmEditor(*this, index);
  for (const char* name : kSettingToggles) editor->menus().action(name)->setCheckable(true);
  showLineNumbers(editor->rtfTextBox().widget(), lineNumbers_);
  QMenu* windowMenu = editor->menus().menu("mnuWindow");
  connect(windowMenu, &QMenu::aboutToShow, this, [this, windowMenu] { fillWindowList(windowMenu); });
  QMdiSubWindow* sub = mdi_->addSubWindow(editor);
  sub->setAttribute(Qt::WA_DeleteOnClose);
  sub->setWindowIcon(style()->standardIcon(QStyle::SP_FileIcon));
  const QSize room = mdi_->viewport()->size();
  sub->resize(std::max(480, room.width() * 2 / 3), std::max(320, room.height() * 2 / 3));
  windows_[index] = editor;
  documents_.record(index).scheme = currentScheme_;
  editor->LoadMenuArray();
  emit documentWindowCreated(editor);
  connect(editor, &QObject::destroyed, this, [this, index] { forgetWindow(index); });
  return editor;
}

void MDIForm1::forgetWindow(int index) {
  auto it = windows_.find(index);
  if (it == windows_.end()) return;
  frmEditor* editor = it->second;
  windows_.erase(it);
  emit documentClosed(editor);
  if (documents_.valid(index)) documents_.release(index);
  if (menusShownFor_ == editor) showMenusOf(nullptr);
  if (windows_.empty()) {
    showMenusOf(nullptr);
    En_Dis_able();
  }
}

namespace {
std::string upperCased(std::string s) {
  for (char& c : s) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  return s;
}
}  // namespace

bool MDIForm1::scriptRunning() const { return scripts_ && scripts_->host().running(); }

void MDIForm1::callLoadDoc(const std::string& fileName) {
  if (scripts_) scripts_->host().callHook("LoadDoc", {vbs::Variant::str(fileName)});
}

frmEditor* MDIForm1::newDocument() {
  const int index = documents_.findFreeSlot();
  frmEditor* editor = createWindow(index);
  const std::string name = untitledName(index);
  editor->setWindowTitle(q(name));
  DocumentRecord& record = documents_.record(index);
  record.scheme = currentScheme_;
  record.fileName = name;
  recentListUpdate(name);
  editor->prepare();
  applyAutoFormat();
  record.changed = false;
  callLoadDoc(name);
  return editor;
}

frmEditor* MDIForm1::LoadDoc(std::string fileName) {
  if (trimBlanks(fileName).empty()) return nullptr;
  frmEditor* editor = nullptr;
  try {
    checkReadable(fileName);
    if (fileSize(fileName) == 0) {
      dialogs().message(emptyFileMessage(fileName), kEmptyFileCaption, Buttons::Ok, Icon::Information);
      return nullptr;
    }
    const int index = documents_.findFreeSlot();
    editor = createWindow(index);
    documents_.record(index).scheme = currentScheme_;
    // A program with Linux line ends is worked on as its CR LF twin and saved back with LF.
    WorkCopy copy(fileName, values_.Temp2File, isRichTextName(fileName));
    std::string folder = fileName;
    lastPath_ = PathOf(folder);
    writeSetting(settings_, Setting::LastPath, lastPath_);
    editor->prepare();
    editor->rtfTextBox().loadFile(copy.loadFrom(), isRichTextName(fileName) ? TextKind::Rich : TextKind::Plain);
    copy.finish();
    DocumentRecord& record = documents_.record(index);
    record.fileName = fileName;
    record.lineEnds = copy.lineEnds();
    editor->setWindowTitle(q(captionAfterLoad(fileName)));
    applyAutoFormat();
    recentListUpdate(fileName);
    record.changed = false;
    editor->ShowLineNum();
    emit documentRead(editor);
    callLoadDoc(fileName);
    return editor;
  } catch (const AppError& e) {
    dialogs().message(FileErrorText(e.number(), e.description()), kFileErrorCaption, Buttons::Ok, Icon::Information);
  } catch (const std::exception& e) {
    dialogs().message(e.what(), kFileErrorCaption, Buttons::Ok, Icon::Information);
  }
  // A window opened for a file that could not be read goes again, leaving no empty document.
  if (editor) {
    documents_.record(editor->tag()).changed = false;
    if (auto* sub = qobject_cast<QMdiSubWindow*>(editor->parentWidget())) delete sub;
  }
  return nullptr;
}

bool MDIForm1::SaveFile(frmEditor& window, const std::string& fileName) {
  try {
    HourGlass wait;
    const LineEnds lineEnds = window.record().lineEnds;
    if (!isRichTextName(fileName) && lineEnds != LineEnds::CrLf)
      writeFileAtomically(fileName, withLineEnds(window.rtfTextBox().text(), lineEnds));
    else
      window.rtfTextBox().saveFile(fileName, isRichTextName(fileName) ? TextKind::Rich : TextKind::Plain);
  } catch (const std::exception& e) {
    dialogs().message(std::string(e.what()) + "\r\n" + kFileNotSaved, kAppTitle, Buttons::Ok, Icon::Information);
    return false;
  }
  DocumentRecord& record = window.record();
  record.fileName = fileName;
  window.setWindowTitle(q(captionAfterSave(fileName)));
  record.changed = false;
  recentListUpdate(fileName);
  // A saved main script is what the macros are from now on.
  std::string savedName = fileName;
  if (scripts_ && upperCased(FileNameOf(savedName)) == "MAIN.VBS") scripts_->resetCode();
  emit documentWritten(&window);
  return true;
}

bool MDIForm1::saveAsPlain(frmEditor& window) {
  std::string current = window.record().fileName;
  FileRequest request{true, kPlainTitle, kPlainFilter, "", ""};
  request.fileName = FileNameOf(current);
  request.initialFolder = PathOf(current);
  const auto chosen = dialogs().chooseFile(request);
  if (!chosen) return false;
  return SaveFile(window, fixChosenSaveName(*chosen));
}

void MDIForm1::saveAsRich(frmEditor& window) {
  // The record keeps the new extension even when the dialog is cancelled.
  ChangeExtension(window.record().fileName, "RTF");
  std::string current = window.record().fileName;
  FileRequest request{true, "Save As Rich Text File", "Rich Text (*.RTF)|*.RTF", "", ""};
  request.fileName = FileNameOf(current);
  request.initialFolder = PathOf(current);
  const auto chosen = dialogs().chooseFile(request);
  if (!chosen) return;
  SaveFile(window, fixChosenSaveName(*chosen));
}

bool MDIForm1::queryClose(frmEditor& window) {
  DocumentRecord& record = window.record();
  if (!closeNeedsQuery(record)) return false;
  const std::string caption = window.windowTitle().toLocal8Bit().toStdString();
  const Answer answer = dialogs().message(closeQueryMessage(caption), windowTitle().toLocal8Bit().toStdString(),
                                          Buttons::YesNoCancel, Icon::Exclamation);
  const QueryAnswer query = answer == Answer::Yes ? QueryAnswer::Yes
                            : answer == Answer::No ? QueryAnswer::No
                                                   : QueryAnswer::Cancel;
  const CloseDecision decision = decideClose(query, caption);
  if (decision.cancel) return true;
  std::string name;
  if (decision.save == CloseDecision::Save::UnderRecordName) {
    name = record.fileName;
  } else if (decision.save == CloseDecision::Save::AskForName) {
    FileRequest request{true, kPlainTitle, kPlainFilter, lastPath_, kUntitledSaveName};
    name = dialogs().chooseFile(request).value_or(std::string());
  }
  if (!name.empty()) {
    // A save that fails keeps the window open: closing it would throw the text away.
    if (!SaveFile(window, name)) return true;
    record.changed = false;
  }
  return false;
}

void MDIForm1::applyAutoFormat() {
  // With auto format on, a document is coloured by modes as soon as its text is in the window.
  if (autoFormat_) commands_.run("mnuModal", 0);
}

void MDIForm1::openDialog(int quickFolder) {
  FileRequest request{false, "Open File For Editing", "All Files (*.*)|*.*", lastPath_, ""};
  QAction* folder = quickFolder >= 1 ? quickFolders_.at(static_cast<std::size_t>(quickFolder - 1)) : nullptr;
  if (folder) request.initialFolder = folder->data().toString().toLocal8Bit().toStdString();
  const auto chosen = dialogs().chooseFile(request);
  if (!chosen) return;
  if (folder) {
    // The quick folder remembers where its last file came from.
    std::string path = *chosen;
    const QString tag = q(PathOf(path));
    folder->setData(tag);
    folder->setText(tag);
  }
  LoadDoc(*chosen);
}

void MDIForm1::recentListUpdate(const std::string& name) {
  RecentListUpdate(settings_, name, FileExists(name));
  rebuildRecentMenus();
}

void MDIForm1::rebuildRecentMenus() {
  const auto apply = [](MenuSet& set, const std::vector<RecentEntry>& entries) {
    if (entries.empty()) return;  // nothing is shown until there is a first entry
    set.action("mnuRecentFile", 0)->setVisible(true);
    for (int i = 1; i < kRecentFileEntries; ++i) {
      QAction* action = set.action("mnuRecentFile", i);
      const bool used = i <= static_cast<int>(entries.size());
      action->setVisible(used);
      if (!used) continue;
      const RecentEntry& entry = entries[static_cast<std::size_t>(i - 1)];
      action->setText(q(entry.caption));
      action->setToolTip(q(entry.path));  // the caption may be shortened
    }
  };
  const auto frameEntries = RecentMenuEntries(settings_, false);
  recentPaths_.assign(1, std::string());
  for (const RecentEntry& entry : frameEntries) recentPaths_.push_back(entry.path);
  apply(*frameMenus_, frameEntries);
  const auto documentEntries = RecentMenuEntries(settings_, true);
  for (int index : documents_.openIndexes())
    if (frmEditor* editor = editorOf(index)) apply(editor->menus(), documentEntries);
}

}  // namespace lathwick::gui
