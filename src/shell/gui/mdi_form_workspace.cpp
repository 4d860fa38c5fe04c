// The frame as the workspace commands and scripts see, and as its document windows see it.
#include "document/gui/frm_editor.h"
#include "platform/gui/dialogs.h"
#include "shell/gui/mdi_form.h"
#include "shell/gui/status_panels.h"

namespace lathwick::gui {

WorkspaceDocument* MDIForm1::activeDocument() { return activeEditor(); }

std::vector<WorkspaceDocument*> MDIForm1::openDocuments() {
  std::vector<WorkspaceDocument*> all;
  for (frmEditor* editor : editors()) all.push_back(editor);
  return all;
}

void MDIForm1::setStatusText(const std::string& text) { panels_->setText("Stat", text); }

Answer MDIForm1::messageBox(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  return dialogs().message(text, caption, buttons, icon);
}

std::optional<std::string> MDIForm1::inputBox(const std::string& prompt, const std::string& caption,
                                              const std::string& defaultText) {
  return dialogs().askText(prompt, caption, defaultText);
}

std::optional<std::string> MDIForm1::chooseFile(const FileRequest& request) { return dialogs().chooseFile(request); }

void MDIForm1::setPanelText(const std::string& panel, const std::string& text) { panels_->setText(panel, text); }

void MDIForm1::setOverwrite(bool overwrite) { panels_->setOverwrite(overwrite); }

void MDIForm1::forgetEditor(frmEditor& window) { forgetTarget(&window); }

}  // namespace lathwick::gui
