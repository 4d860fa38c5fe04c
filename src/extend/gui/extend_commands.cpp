#include "extend/gui/extend_commands.h"

#include <QAction>
#include <QProcess>

#include "document/gui/frm_editor.h"
#include "extend/easy_text.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/gui/dialogs.h"
#include "platform/app_folder.h"
#include "shell/gui/frame_scripts.h"
#include "shell/gui/mdi_form.h"
#include "workspace/gui/menu_set.h"
#include "platform/app_names.h"

namespace lathwick::gui {
namespace {
QString local(const std::string& s) { return QString::fromLocal8Bit(s.c_str()); }
}  // namespace

ExtendTools::ExtendTools(MDIForm1& frame) : QObject(&frame), frame_(frame) {
  setObjectName(QStringLiteral("ExtendTools"));
  connect(&frame_, &MDIForm1::documentWindowCreated, this, [this](frmEditor* editor) { fillSendMenu(*editor); });
}

std::string ExtendTools::sendToDatName() const { return frame_.values().AppFolder + extend::kSendToFileName; }

void ExtendTools::fillSendMenu(frmEditor& editor) {
  extend::SendToList list(sendToDatName());
  list.read();  // an unreadable list is reported by its editor; the menu then says "Empty"
  const std::vector<std::string> titles = list.titles();
  MenuSet& menus = editor.menus();
  menus.setNumberedEntries("mnuSend", "mnuShell", 0, titles.empty() ? std::vector<std::string>{"Empty"} : titles);
  if (titles.empty()) menus.setEnabled("mnuShell", false, 0);
}

void ExtendTools::rebuildSendMenus() {
  for (frmEditor* editor : frame_.editors()) fillSendMenu(*editor);
}

void ExtendTools::report(const std::string& message) {
  dialogs().message(message, kAppTitle, Buttons::Ok, Icon::Information);
}

void ExtendTools::sendDocument(frmEditor& editor, int index) {
  if (editor.rtfTextBox().textLength() == 0) return;  // an empty document is never sent
  if (frame_.queryClose(editor)) return;              // cancelled
  extend::SendToList list(sendToDatName());
  if (const auto failed = list.read()) return report(*failed);
  if (index < 0 || index >= list.count()) return;
  const std::string fileName = editor.filename();
  callSendToScript(list.ShellProgram(index), fileName);
  startProgram(list.at(index), fileName);
}

void ExtendTools::callSendToScript(const std::string& program, const std::string& fileName) {
  FrameScripts* scripts = frame_.scripts();
  if (!scripts) return;
  // One argument: an array of the program path and the file name. An error is shown by the host
  // and sending goes on.
  const auto pair = vbs::ArrayData::ofValues({vbs::Variant::str(program), vbs::Variant::str(fileName)});
  scripts->host().callHook("SendTo", {vbs::Variant::array(pair)});
}

void ExtendTools::startProgram(const extend::SendToEntry& entry, const std::string& fileName) {
  const auto command = extend::buildSendCommand(entry, fileName);
  if (!command) return report(extend::sendFailedMessage("Invalid procedure call or argument"));
  // The file sent is the document's file as saved; a document never saved has none.
  if (!isRegularFile(fileName)) return report(extend::sendFailedMessage(makeError(err::kFileNotFound).description()));
  QProcess process;
  process.setProgram(local(command->program));
  QStringList arguments;
  for (const std::string& word : command->arguments) arguments << local(word);
  process.setArguments(arguments);
  if (!command->workingFolder.empty()) process.setWorkingDirectory(local(command->workingFolder));
  if (process.startDetached()) return;
  const std::string description = !isRegularFile(command->program)
                                       ? makeError(err::kFileNotFound).description()
                                       : process.errorString().toLocal8Bit().toStdString();
  report(extend::sendFailedMessage(description));
}

void ExtendTools::sendToFirst() {
  frmEditor* editor = frame_.activeEditor();
  if (!editor) return;
  extend::SendToList list(sendToDatName());
  if (list.read() || list.count() == 0) {
    editSendToList();
    return;
  }
  sendDocument(*editor, 0);
}

frmSendTo* ExtendTools::editSendToList() {
  if (!sendTo_) {
    sendTo_ = new frmSendTo(sendToDatName(), &frame_);
    sendTo_->setAttribute(Qt::WA_DeleteOnClose);
    sendTo_->setWindowModality(Qt::ApplicationModal);
    connect(sendTo_, &frmSendTo::listSaved, this, &ExtendTools::rebuildSendMenus);
    sendTo_->show();
    sendTo_->load();
  }
  sendTo_->raise();
  sendTo_->activateWindow();
  return sendTo_;
}

frmEasyText* ExtendTools::showEasyText() {
  if (!easyText_) {
    auto activeDocument = [this]() -> WorkspaceDocument* { return frame_.activeDocument(); };
    easyText_ = new frmEasyText(frame_.values().AppFolder, easyTextMemory_, activeDocument, &frame_);
    easyText_->setAttribute(Qt::WA_DeleteOnClose);
    easyText_->show();
    easyText_->showRemembered();
  }
  easyText_->raise();
  easyText_->activateWindow();
  return easyText_;
}

void registerExtendCommands(MDIForm1& frame) {
  auto* tools = new ExtendTools(frame);
  CommandDispatcher& commands = frame.commands();
  commands.add("mnuShell", [&frame, tools](int index) {
    if (frmEditor* editor = frame.activeEditor()) tools->sendDocument(*editor, index);
  });
  commands.add("SendTo", [tools](int) { tools->sendToFirst(); });
  commands.add("mnuSendto", [tools](int) { tools->editSendToList(); });
  commands.add("mnueasytext", [tools](int) { tools->showEasyText(); });
}

}  // namespace lathwick::gui
