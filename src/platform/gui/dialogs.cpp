#include "platform/gui/dialogs.h"

#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QUrl>
#include <algorithm>
#include <vector>

#include "platform/app_names.h"

namespace lathwick::gui {
namespace {
QString q(const std::string& s) { return QString::fromLocal8Bit(s.c_str()); }

class QtDialogs : public Dialogs {
 public:
  Answer message(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) override;
  std::optional<std::string> chooseFile(const FileRequest& request) override;
  void openInBrowser(const std::string& path) override;
};

Dialogs*& current() {
  static QtDialogs real;
  static Dialogs* inUse = &real;
  return inUse;
}
}  // namespace

Dialogs& dialogs() { return *current(); }

ScopedDialogs::ScopedDialogs(Dialogs& replacement) : previous_(current()) { current() = &replacement; }
ScopedDialogs::~ScopedDialogs() { current() = previous_; }

std::string qtFilterOf(const std::string& filter) {
  // Pairs of description|pattern. The dialog filters by the patterns written in brackets after
  // the description, and there "*.*" would hide names without an extension: it becomes "*".
  std::vector<std::string> parts;
  std::size_t start = 0;
  for (std::size_t bar; (bar = filter.find('|', start)) != std::string::npos; start = bar + 1)
    parts.push_back(filter.substr(start, bar - start));
  parts.push_back(filter.substr(start));
  std::string out;
  for (std::size_t i = 0; i + 1 < parts.size(); i += 2) {
    std::string description = parts[i];
    if (const auto open = description.rfind(" ("); open != std::string::npos && description.back() == ')')
      description.erase(open);
    std::string patterns;
    std::size_t from = 0;
    const std::string& list = parts[i + 1];
    while (from <= list.size()) {
      const std::size_t semi = std::min(list.find(';', from), list.size());
      std::string one = list.substr(from, semi - from);
      if (one == "*.*") one = "*";
      if (!one.empty()) patterns += (patterns.empty() ? "" : " ") + one;
      from = semi + 1;
    }
    if (!out.empty()) out += ";;";
    out += description + " (" + patterns + ")";
  }
  return out;
}

Answer QtDialogs::message(const std::string& text, const std::string& caption, Buttons buttons, Icon icon) {
  QMessageBox box(QApplication::activeWindow());
  // A box raised without a caption carries the program's title, as every untitled box does.
  box.setWindowTitle(q(caption.empty() ? std::string(kAppTitle) : caption));
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
  QFileDialog dialog(QApplication::activeWindow(), q(request.title), q(request.initialFolder), q(qtFilterOf(request.filter)));
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

std::optional<std::string> Dialogs::askText(const std::string& prompt, const std::string& caption,
                                           const std::string& initial) {
  bool ok = false;
  const QString text = QInputDialog::getText(QApplication::activeWindow(), QString::fromLatin1(caption.c_str()),
                                             QString::fromLatin1(prompt.c_str()), QLineEdit::Normal,
                                             QString::fromLatin1(initial.c_str()), &ok);
  if (!ok) return std::nullopt;
  return text.toLatin1().toStdString();
}

void QtDialogs::openInBrowser(const std::string& path) {
  QDesktopServices::openUrl(QUrl::fromLocalFile(q(path)));
}

}  // namespace lathwick::gui
