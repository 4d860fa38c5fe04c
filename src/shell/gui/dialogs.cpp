#include "shell/gui/dialogs.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QMessageBox>
#include <QUrl>

namespace lathwick::gui {
namespace {
QString q(const std::string& s) { return QString::fromLocal8Bit(s.c_str()); }
}  // namespace

std::string qtFilterOf(const std::string& filter) {
  // Pairs of description|pattern; the dialog shows the descriptions, which carry the patterns.
  std::string out;
  std::size_t start = 0;
  bool description = true;
  while (start <= filter.size()) {
    const std::size_t bar = filter.find('|', start);
    const std::string part = filter.substr(start, bar == std::string::npos ? std::string::npos : bar - start);
    if (description) {
      if (!out.empty()) out += ";;";
      out += part;
    }
    description = !description;
    if (bar == std::string::npos) break;
    start = bar + 1;
  }
  return out;
}

Answer QtDialogs::message(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  QMessageBox box(parent_);
  box.setWindowTitle(q(caption));
  box.setText(q(text));
  switch (icon) {
    case Icon::None: break;
    case Icon::Information: box.setIcon(QMessageBox::Information); break;
    case Icon::Exclamation: box.setIcon(QMessageBox::Warning); break;
    case Icon::Critical: box.setIcon(QMessageBox::Critical); break;
    case Icon::Question: box.setIcon(QMessageBox::Question); break;
  }
  switch (buttons) {
    case Buttons::Ok: box.setStandardButtons(QMessageBox::Ok); break;
    case Buttons::OkCancel: box.setStandardButtons(QMessageBox::Ok | QMessageBox::Cancel); break;
    case Buttons::YesNo: box.setStandardButtons(QMessageBox::Yes | QMessageBox::No); break;
    case Buttons::YesNoCancel:
      box.setStandardButtons(QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel);
      break;
  }
  switch (box.exec()) {
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    case QMessageBox::Ok: return Answer::Ok;
    default: return Answer::Cancel;
  }
}

std::optional<std::string> QtDialogs::chooseFile(const FileRequest& request) {
  QFileDialog dialog(parent_, q(request.title), q(request.initialFolder), q(qtFilterOf(request.filter)));
  if (request.save) {
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);  // the dialog itself asks before overwriting
  } else {
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
  }
  if (!request.fileName.empty()) dialog.selectFile(q(request.fileName));
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return std::nullopt;
  return dialog.selectedFiles().first().toLocal8Bit().toStdString();
}

void QtDialogs::openInBrowser(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(q(path)));
}

}  // namespace lathwick::gui
