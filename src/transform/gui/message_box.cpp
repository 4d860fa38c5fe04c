#include "transform/gui/message_box.h"

#include <QMessageBox>
#include <QString>

namespace lathwick::gui {

namespace {

QMessageBox::Icon qtIcon(MessageIcon icon) {
  switch (icon) {
    case MessageIcon::Information: return QMessageBox::Information;
    case MessageIcon::Exclamation: return QMessageBox::Warning;
    case MessageIcon::Critical: return QMessageBox::Critical;
    case MessageIcon::Question: return QMessageBox::Question;
    case MessageIcon::None: break;
  }
  return QMessageBox::NoIcon;
}

class QtMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer show(QWidget* parent, const Message& message) override {
    QMessageBox::StandardButtons buttons = QMessageBox::Ok;
    if (message.buttons == MessageButtons::YesNo) buttons = QMessageBox::Yes | QMessageBox::No;
    if (message.buttons == MessageButtons::YesNoCancel)
      buttons = QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    const std::string& title = message.title.empty() ? std::string(kDefaultMessageTitle) : message.title;
    // The program's texts are bytes; Latin-1 keeps every byte as one character.
    QMessageBox box(qtIcon(message.icon), QString::fromLatin1(title), QString::fromLatin1(message.text), buttons,
                    parent);
    switch (box.exec()) {
      case QMessageBox::Yes: return MessageAnswer::Yes;
      case QMessageBox::No: return MessageAnswer::No;
      case QMessageBox::Cancel: return MessageAnswer::Cancel;
      default: return MessageAnswer::Ok;
    }
  }
};

MessageBoxes*& current() {
  static QtMessageBoxes real;
  static MessageBoxes* boxes = &real;
  return boxes;
}

}  // namespace

MessageBoxes& messageBoxes() { return *current(); }

void showMessage(QWidget* parent, const std::string& text, MessageIcon icon, const std::string& title) {
  messageBoxes().show(parent, Message{text, title, icon, MessageButtons::Ok});
}

ScopedMessageBoxes::ScopedMessageBoxes(MessageBoxes& boxes) : previous_(current()) { current() = &boxes; }
ScopedMessageBoxes::~ScopedMessageBoxes() { current() = previous_; }

MessageAnswer RecordingMessageBoxes::show(QWidget*, const Message& message) {
  shown.push_back(message);
  return answer;
}

}  // namespace lathwick::gui
