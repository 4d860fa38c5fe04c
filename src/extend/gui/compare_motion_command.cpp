#include "extend/gui/compare_motion_command.h"

#include <QInputDialog>
#include <QStringList>

#include "extend/verify/motion_verdict.h"
#include "format/pass_frame.h"
#include "platform/errors.h"
#include "platform/file_system.h"
#include "platform/gui/dialogs.h"
#include "transform/gui/text_bytes.h"
#include "transform/gui/transform_target.h"

namespace lathwick::gui {

namespace {

constexpr const char* kAFile = "A file...";

// The document's plain text, through the work file the passes use for it.
std::optional<std::string> plainTextOf(TransformTarget& document, const std::string& scratch) {
  if (!document.savePlainText(scratch)) return std::nullopt;
  return readWholeFile(scratch);
}

std::string fileNameOf(const std::string& path) {
  const size_t slash = path.find_last_of("/\\");
  return slash == std::string::npos ? path : path.substr(slash + 1);
}

}  // namespace

void compareMotionWithText(TransformTarget& active, const std::string& otherText, const std::string& otherName,
                           const std::function<void(long line)>& showLine) {
  const auto mine = plainTextOf(active, active.inputWorkFile());
  if (!mine) return;
  toolpath::ModelOptions model;
  model.reader.comment = commentDelimitersFor(active.commentStartText());
  const verify::MotionVerdict v = verify::verdictOfComparison(*mine, otherText, otherName, model);
  if (v.line > 0) showLine(static_cast<long>(v.line));
  active.setStatusText(v.text);
}

void compareMotionWith(TransformTarget& active, const std::vector<OpenProgram>& others, QWidget* parent,
                       const std::function<void(long line)>& showLine) {
  if (!others.empty()) {
    QStringList items;
    for (const OpenProgram& o : others) items << fromBytes(o.caption);
    items << QString::fromLatin1(kAFile);
    bool ok = false;
    const QString choice = QInputDialog::getItem(parent, kCompareMotionTitle, "Compare the motion of this program with:",
                                                 items, 0, false, &ok);
    if (!ok) return;
    const int index = static_cast<int>(items.indexOf(choice));
    if (index >= 0 && index < static_cast<int>(others.size())) {
      const auto text = plainTextOf(*others[index].document, active.outputWorkFile());
      if (text) compareMotionWithText(active, *text, others[index].caption, showLine);
      return;
    }
  }
  FileRequest request;
  request.title = kCompareMotionTitle;
  request.filter = "All Files (*.*)|*.*";
  const auto path = dialogs().chooseFile(request);
  if (!path) return;
  const auto text = readWholeFile(*path);
  if (!text) {
    dialogs().message(*path + ": " + makeError(err::kFileNotFound).description(), kCompareMotionTitle, Buttons::Ok,
                      Icon::Exclamation);
    return;
  }
  compareMotionWithText(active, *text, fileNameOf(*path), showLine);
}

}  // namespace lathwick::gui
