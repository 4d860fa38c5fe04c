#pragma once
// The one way the transformation dialogs (and whoever else wants it) put a message box in front
// of the user. A test installs its own MessageBoxes to read and answer the messages instead.
#include <string>
#include <vector>

class QWidget;

namespace lathwick::gui {

enum class MessageIcon { None, Information, Exclamation, Critical, Question };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Yes, No, Cancel };

// The caption a message box gets when its caller names none.
inline constexpr const char* kDefaultMessageTitle = "Lathwick";

struct Message {
  std::string text;
  std::string title;  // empty: kDefaultMessageTitle
  MessageIcon icon = MessageIcon::None;
  MessageButtons buttons = MessageButtons::Ok;
};

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual MessageAnswer show(QWidget* parent, const Message& message) = 0;
};

// The boxes in use: real modal message boxes unless a test has installed others.
MessageBoxes& messageBoxes();

// Shorthand for an OK box.
void showMessage(QWidget* parent, const std::string& text, MessageIcon icon = MessageIcon::None,
                 const std::string& title = {});

// Puts `boxes` in use for its lifetime (tests), then restores the previous ones.
class ScopedMessageBoxes {
 public:
  explicit ScopedMessageBoxes(MessageBoxes& boxes);
  ~ScopedMessageBoxes();
  ScopedMessageBoxes(const ScopedMessageBoxes&) = delete;
  ScopedMessageBoxes& operator=(const ScopedMessageBoxes&) = delete;

 private:
  MessageBoxes* previous_;
};

// Records every message and gives a fixed answer (tests, and batch-like runs with no user).
class RecordingMessageBoxes : public MessageBoxes {
 public:
  MessageAnswer show(QWidget* parent, const Message& message) override;
  std::vector<Message> shown;
  MessageAnswer answer = MessageAnswer::Ok;
};

}  // namespace lathwick::gui
