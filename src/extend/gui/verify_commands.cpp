#include "extend/gui/verify_commands.h"

#include <QInputDialog>
#include <QStringList>

#include "extend/verify/motion_verdict.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "workspace/command_dispatch.h"
#include "workspace/workspace.h"

namespace lathwick::gui {

namespace {

std::string fileNameOf(const std::string& path) {
  const size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

// With other documents open, asks which one (or a file); otherwise goes to the open dialog.
void chooseAndCompare(Workspace& workspace, QWidget* parent) {
  WorkspaceDocument* active = workspace.activeDocument();
  if (!active) return;
  std::vector<WorkspaceDocument*> others;
  for (WorkspaceDocument* d : workspace.openDocuments())
    if (d != active) others.push_back(d);
  if (!others.empty()) {
    QStringList items;
    for (WorkspaceDocument* d : others) items << QString::fromStdString(fileNameOf(d->fileName()));
    items << QStringLiteral("A file...");
    bool ok = false;
    const QString choice = QInputDialog::getItem(parent, kCompareMotionTitle,
                                                 "Compare the motion of this program with:", items, 0, false, &ok);
    if (!ok) return;
    const auto index = items.indexOf(choice);
    if (index >= 0 && index < static_cast<qsizetype>(others.size())) {
      WorkspaceDocument& other = *others[static_cast<size_t>(index)];
      return compareMotionWith(workspace, *active, other.text(), fileNameOf(other.fileName()));
    }
  }
  FileRequest request;
  request.title = kCompareMotionTitle;
  request.filter = "All Files (*.*)|*.*";
  const auto path = workspace.chooseFile(request);
  if (!path) return;
  const auto text = readWholeFile(*path);
  if (!text) {
    workspace.messageBox(*path + ": " + makeError(err::kFileNotFound).description(), kCompareMotionTitle,
                         Buttons::Ok, Icon::Exclamation);
    return;
  }
  compareMotionWith(workspace, *active, *text, fileNameOf(*path));
}

}  // namespace

void compareMotionWith(Workspace& workspace, WorkspaceDocument& active, const std::string& otherText,
                       const std::string& otherName) {
  const verify::MotionVerdict v = verify::verdictOfComparison(active.text(), otherText, otherName, {});
  if (v.line > 0) active.setSelection(active.lineIndex(static_cast<long>(v.line) - 1), 0);
  workspace.setStatusText(v.text);
}

void registerVerifyCommands(CommandDispatcher& commands, Workspace& workspace, QWidget* parent) {
  commands.add("mnuCompareMotion", [&workspace, parent](int) { chooseAndCompare(workspace, parent); });
}

}  // namespace lathwick::gui
