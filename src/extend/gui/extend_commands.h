#pragma once
// The commands of the send-to list and the easy-text library: the "Send To" menu of every
// document window, sending a document to an external program, the list's editing dialog and the
// snippet dialog. registerExtendCommands adds them to the frame's command table.
#include <QObject>
#include <QPointer>
#include <string>

#include "extend/gui/frm_easy_text.h"
#include "extend/gui/frm_send_to.h"

namespace lathwick::gui {

class MDIForm1;
class frmEditor;

class ExtendTools : public QObject {
  Q_OBJECT
 public:
  explicit ExtendTools(MDIForm1& frame);

  std::string sendToDatName() const;
  // Fills a document window's "Send To" menu with one entry per list entry ("Empty" while none).
  void fillSendMenu(frmEditor& editor);
  void rebuildSendMenus();
  // Hands the document's file to the program of list entry `index`.
  void sendDocument(frmEditor& editor, int index);
  // The toolbar's "Comm": the first program of the list; with an empty list, the list's editor.
  void sendToFirst();
  frmSendTo* editSendToList();
  frmEasyText* showEasyText();

 private:
  // Calls the scripts' "SendTo" procedure, when they define one, with the program path and the
  // document's file name, before the program starts.
  void callSendToScript(const std::string& program, const std::string& fileName);
  void startProgram(const extend::SendToEntry& entry, const std::string& fileName);
  void report(const std::string& message);

  MDIForm1& frame_;
  EasyTextMemory easyTextMemory_;
  QPointer<frmSendTo> sendTo_;
  QPointer<frmEasyText> easyText_;
};

// Registers "mnuShell", "SendTo", "mnuSendto" and "mnueasytext"; the tools belong to the frame.
void registerExtendCommands(MDIForm1& frame);

}  // namespace lathwick::gui
